// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "EditManager.h"

#include "Containment.h"
#include "EditorTable.h"
#include "ExactNumbers.h"
#include "FieldCommand.h"
#include "FieldText.h"
#include "IgnoreCommand.h"
#include "IndexCheck.h"
#include "KeptImages.h"
#include "KeptSelection.h"
#include "MaskTicks.h"
#include "NodeOrigin.h"
#include "ReadableLine.h"
#include "ShownNumbers.h"
#include "UntouchedParts.h"
#include "WriteWatch.h"

#include <HbFieldEditors.h>
#include <HbPopupWidget.h>
#include <HbSFBitMaskWidget.h>
#include <HbSlider.h>

#include <QLineEdit>
#include <QScopedValueRollback>
#include <QUndoStack>

#include <Inventor/SbString.h>
#include <Inventor/fields/SoSFEnum.h>
#include <Inventor/fields/SoSFRotation.h>

#include <algorithm>
#include <utility>

EditManager::EditManager(QUndoStack *stack, QObject *parent) : HbFieldEditorCommandManager(parent), m_stack(stack)
{
    connect(&m_typing, &TypedNumbers::refused, this, [this](const QString &why) {
        if (m_field)
            Q_EMIT message(QStringLiteral("%1: %2").arg(FieldText::qualifiedName(*m_field), why));
    });
    connect(&m_typing, &TypedNumbers::dropped, this, &EditManager::refresh);
    connect(&m_typing, &TypedNumbers::stepped, this, &EditManager::commitStep);
}

EditManager::~EditManager()
{
    m_slider.reset();
}

void EditManager::setEditor(HbFieldEditors *editor)
{
    m_editor = editor;
    m_frame = editor;
    m_isStandard = EditorTable::isStandard(*editor);
    auto *const line = editor->findChild<QLineEdit *>(QStringLiteral("lineEdit"));
    if (m_isStandard && line && line->isEnabled())
        m_line = line;
    if (auto *const popup = dynamic_cast<HbPopupWidget *>(editor))
        new ReadableLine(*popup);
    if (auto *const mask = dynamic_cast<HbSFBitMaskWidget *>(editor); m_isStandard && mask) {
        m_mask = new MaskTicks(*mask);
        connect(m_mask, &MaskTicks::clicked, this, &EditManager::maskClicked);
    }
    SliderTarget &value = *this;
    if (auto *const slider = editor->findChild<HbSlider *>())
        m_slider = std::make_unique<SliderEdit>(*slider, value, m_stack);
}

void EditManager::fitSliders()
{
    m_fitsSliders = true;
    refresh();
}

void EditManager::setField(SoField *field)
{
    if (m_slider)
        m_slider->startAnew();
    m_field = field;
    m_editor->setField(field);
    if (field && m_isStandard && !std::exchange(m_isTypingReady, true))
        m_typing.adopt(*m_editor, *field);
    if (m_numbers)
        m_numbers->show(nullptr);
    else if (m_isStandard && ShownNumbers::canShow(field))
        m_numbers = new ShownNumbers(*m_editor);
}

void EditManager::refresh()
{
    const QScopedValueRollback<bool> guard(m_refreshing, true);
    const KeptSelection selection;
    if (m_field && m_isStandard)
        EditorTable::renew(*m_editor, *m_field);
    if (m_slider)
        m_slider->show([this] { m_editor->refresh(); });
    else
        m_editor->refresh();
    if (m_mask && m_field)
        m_mask->show(static_cast<const SoSFEnum &>(*m_field));
    if (m_numbers)
        m_numbers->show(m_field);
    m_typing.keepValidators();
    if (!m_line)
        return;
    m_shownLine = m_line->text();
    if (!m_line->hasFocus())
        m_line->setCursorPosition(0); // a long text shows its start
}

void EditManager::letGo()
{
    if (m_slider)
        m_slider->letGo();
}

bool EditManager::isListening() const
{
    return m_field && m_stack && m_frame && !m_refreshing;
}

/// A drag that goes on would be recorded after what was done in its midst.
bool EditManager::isCommanded()
{
    if (isListening())
        letGo();
    return isListening();
}

bool EditManager::refuse()
{
    const QString obstacle = FieldText::obstacle(*m_field);
    if (obstacle.isEmpty())
        return false;
    refresh();
    Q_EMIT message(obstacle);
    return true;
}

/// Where nothing of the node is saved; what comes in by a connection can be ignored.
bool EditManager::refuseForeign()
{
    return NodeOrigin::of(m_field->getContainer()).kind != NodeOrigin::Scene && refuse();
}

void EditManager::edit(const FieldSnapshot &before, const std::function<void()> &write)
{
    if (refuse())
        return;
    const OwnEdit own;
    const std::vector<FieldState> images = imagesBeside(*m_field);
    const WriteWatch watch(*m_field);
    {
        const KeptImages kept(*m_field);
        write();
    }
    const QString why = refusal(watch);
    if (why.isEmpty())
        record(before, m_editSeries, images);
    else
        before.restore(*m_field);
    refresh(); // at once, so that an edit that reports twice is heard once
    if (!why.isEmpty())
        Q_EMIT message(why);
}

QString EditManager::refusal(const WriteWatch &watch) const
{
    const QString name = FieldText::qualifiedName(*m_field);
    if (!watch.isWritten())
        return tr("%1 does not accept what was entered.").arg(name);
    if (leadsInCircles(*m_field))
        return tr("%1 cannot hold what was entered: a node would contain itself.").arg(name);
    return {};
}

void EditManager::record(const FieldSnapshot &before, int series, const std::vector<FieldState> &images)
{
    const FieldSnapshot after(*m_field);
    if (after.isSameValue(before)) {
        before.restore(*m_field); // writing the same value again has cleared the default flag
        return;
    }
    auto command = std::make_unique<FieldCommand>(*m_field, before, after, series);
    command->setImagesBefore(images);
    push(std::move(command));
}

/// What would end the program when it is drawn is taken back, unless it was no better before.
void EditManager::push(std::unique_ptr<QUndoCommand> command)
{
    const QString fault = IndexCheck::faultOf(*m_field);
    if (!fault.isEmpty()) {
        command->redo(); // the first one, which does nothing
        command->undo();
    }
    if (fault.isEmpty() || !IndexCheck::faultOf(*m_field).isEmpty()) {
        m_stack->push(command.release());
        return;
    }
    dropTyped(); // it would be entered once more when its edit closes
    refresh();
    Q_EMIT message(tr("%1 is kept as it was: %2.").arg(FieldText::qualifiedName(*m_field), fault));
}

void EditManager::sfieldSetValue(SbString *previousData)
{
    delete previousData; // its text is rounded
    if (!isCommanded())
        return;
    if (!m_typing.settle())
        return;
    if (m_line && m_line->text() == m_shownLine) {
        refresh(); // its text may tell less than the value
        return;
    }
    if (m_numbers && m_field->isOfType(SoSFRotation::getClassTypeId())) {
        editRotation();
        return;
    }
    const FieldSnapshot before(*m_field);
    const QString shown = m_shownLine;
    const QString typed = m_line ? m_line->text() : QString();
    edit(before, [&] {
        m_editor->applyChanges();
        if (m_isStandard)
            keepUntouchedParts(*m_editor, before.value(), *m_field);
        if (m_line)
            ExactNumbers::mend(*m_field, before.value(), shown, typed);
    });
}

/// Apart from the editor, whose way through axis and angle changes digits that nobody touched.
void EditManager::editRotation()
{
    const NumberParts::Numbers shown = m_numbers->numbers();
    const NumberParts::Numbers typed = numbersIn(*m_editor, shown);
    if (typed.empty())
        return;
    const bool hasAxis = std::any_of(typed.begin(), typed.end() - 1, [](float number) { return number != 0; });
    if (typed == shown || !hasAxis)
        refresh();
    if (!hasAxis)
        Q_EMIT message(tr("%1: the axis of a rotation cannot be 0 0 0.").arg(FieldText::qualifiedName(*m_field)));
    else if (typed != shown)
        edit(FieldSnapshot(*m_field), [&] {
            NumberParts::set(*m_field, typed);
            m_numbers->keep(typed);
        });
}

void EditManager::commitStep(TypedNumber *number)
{
    const QScopedValueRollback<int> series(m_editSeries, number->series());
    number->commit();
}

void EditManager::setValue(const SoField &value)
{
    if (isCommanded())
        edit(FieldSnapshot(*m_field), [this, &value] { m_field->copyFrom(value); });
}

void EditManager::fieldSetDefaultValue()
{
    if (!isCommanded())
        return;
    const FieldSnapshot before(*m_field);
    if (refuse())
        return;
    auto fresh = FieldSnapshot::ofDefault(*m_field);
    if (!fresh) {
        Q_EMIT message(tr("The default of %1 is not known.").arg(FieldText::qualifiedName(*m_field)));
        return;
    }
    fresh->setIgnored(before.isIgnored());
    if (*fresh == before)
        return;
    const std::vector<FieldState> images = imagesBeside(*m_field);
    {
        const KeptImages kept(*m_field);
        fresh->restore(*m_field);
    }
    auto command = std::make_unique<FieldCommand>(*m_field, before, *fresh, FieldCommand::noSeries);
    command->setImagesBefore(images);
    push(std::move(command));
    refresh();
}

void EditManager::fieldSetIgnored(bool ignored)
{
    if (!isCommanded() || bool(m_field->isIgnored()) == ignored || refuseForeign())
        return;
    m_stack->push(new IgnoreCommand(*m_field, ignored));
    refresh();
}

// A field of one value has no rows.
void EditManager::mfieldSwapRows(int, int) { }
void EditManager::mfieldSwapColumns(int, int) { }
void EditManager::mfieldDeleteRows(int, int) { }
void EditManager::mfieldAddRows(int, int) { }
void EditManager::mfieldSet1Value(int, int, QString, SbString *previousData)
{
    delete previousData;
}
void EditManager::mfieldSetValue(int, const void *) { }

std::optional<double> EditManager::slidNumber(const HbSlider &) const
{
    return m_field ? SliderRanges::numberIn(*m_field) : std::nullopt;
}

std::optional<SliderSpan> EditManager::slidSpan(double number) const
{
    if (!m_fitsSliders)
        return std::nullopt;
    return SliderRanges::spanFor(*m_field, number);
}

bool EditManager::beginSlide(const HbSlider &)
{
    if (!isListening() || refuse())
        return false;
    m_before.emplace(*m_field);
    m_slid = m_before;
    return true;
}

void EditManager::slide(const HbSlider &)
{
    m_editor->applyChanges();
    m_slid.emplace(*m_field);
}

bool EditManager::isAsSlid() const
{
    return !m_field || *m_slid == FieldSnapshot(*m_field);
}

void EditManager::dropSlid()
{
    const FieldSnapshot now(*m_field);
    if (!now.isSameValue(*m_slid))
        return;
    m_before->restore(*m_field);
    m_field->setIgnored(now.isIgnored());
    m_field->setDefault(now.isDefault());
}

void EditManager::putBack(HbSlider &)
{
    m_before->restore(*m_field);
    m_slid = m_before;
    const QScopedValueRollback<bool> guard(m_refreshing, true);
    m_editor->refresh();
}

void EditManager::endSlide(int series)
{
    if (m_field && m_stack)
        record(*m_before, series);
}

void EditManager::maskClicked(const QString &name, bool on)
{
    if (!isCommanded())
        return;
    auto &mask = static_cast<SoSFEnum &>(*m_field);
    const int value = MaskTicks::switched(mask, name, on);
    edit(FieldSnapshot(mask), [&] {
        mask.setValue(value);
        const auto standard = FieldSnapshot::ofDefault(mask);
        if (standard && standard->isSameValue(FieldSnapshot(mask)))
            mask.setDefault(TRUE); // else it would be saved as all its names
    });
}
