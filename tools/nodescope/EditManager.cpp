// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "EditManager.h"

#include "EditorTable.h"
#include "FieldCommand.h"
#include "FieldText.h"
#include "IgnoreCommand.h"
#include "UntouchedParts.h"
#include "WriteWatch.h"

#include <HbFieldEditors.h>
#include <HbSFBitMaskWidget.h>

#include <QCheckBox>
#include <QEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSlider>
#include <QUndoStack>

#include <Inventor/SbString.h>
#include <Inventor/fields/SoField.h>

#include <utility>

EditManager::EditManager(QUndoStack *stack, QObject *parent)
    : HbFieldEditorCommandManager(parent), m_stack(stack), m_series(FieldCommand::newSeries())
{
}

void EditManager::setEditor(HbFieldEditors *editor)
{
    m_editor = editor;
    m_frame = editor;
    m_slider = editor->findChild<QSlider *>();
    m_edit = editor->findChild<QLineEdit *>();
    m_isStandard = EditorTable::isStandard(*editor);
    auto *const line = editor->findChild<QLineEdit *>(QStringLiteral("lineEdit"));
    if (m_isStandard && line && line->isEnabled())
        m_line = line;
    m_isMask = m_isStandard && dynamic_cast<HbSFBitMaskWidget *>(editor);
    if (m_isMask) {
        const auto boxes = editor->findChildren<QCheckBox *>();
        for (const QCheckBox *const box : boxes) // writes the field itself, in a connection made earlier
            connect(box, &QCheckBox::clicked, this, &EditManager::maskClicked);
    }
    if (!m_slider)
        return;
    // connected after the library's own connections: its slots have run when these do, but for the first
    connect(m_slider, &QSlider::actionTriggered, this, [this] {
        if (!isHeld())
            remember();
    });
    connect(m_slider, &QSlider::valueChanged, this, &EditManager::sliderStepped);
    connect(m_slider, &QSlider::sliderPressed, this, &EditManager::hold);
    connect(m_stack, &QUndoStack::indexChanged, this, [this] {
        if (isHeld() && m_dragged && m_field && !m_dragged->isSameValue(FieldSnapshot(*m_field)))
            remember(); // undone in the middle of a drag: the drag starts from here
    });
    m_slider->installEventFilter(this);
}

void EditManager::setField(SoField *field)
{
    m_hold.reset();
    m_series = FieldCommand::newSeries();
    m_field = field;
    m_before.reset();
    m_editor->setField(field);
}

void EditManager::refresh()
{
    const QScopedValueRollback<bool> guard(m_refreshing, true);
    // a mask's boxes stay as they were clicked: bits of several boxes would come back with any of them
    if (m_field && m_isStandard && !(m_isMask && m_before && m_before->isSameValue(FieldSnapshot(*m_field))))
        EditorTable::renew(*m_editor, *m_field);
    m_editor->refresh();
    if (m_line)
        m_shownLine = m_line->text();
    remember();
}

/// A drag that ends with its editor counts like any other.
EditManager::~EditManager()
{
    if (isHeld() && m_field && m_stack && m_before)
        record(*m_before, FieldCommand::noSeries);
}

bool EditManager::isListening() const
{
    return m_field && m_stack && m_frame && !m_refreshing;
}

/// Where the field cannot be edited: says why, and takes back what the slider wrote on the way.
bool EditManager::refuse(const FieldSnapshot &before)
{
    const QString obstacle = FieldText::obstacle(*m_field);
    if (obstacle.isEmpty())
        return false;
    before.restore(*m_field);
    refresh();
    Q_EMIT message(obstacle);
    return true;
}

void EditManager::edit(const FieldSnapshot &before, const std::function<void()> &write)
{
    if (refuse(before))
        return;
    const OwnEdit own;
    const std::vector<FieldState> images = imagesBeside(*m_field);
    const WriteWatch watch(*m_field);
    write();
    const bool isAccepted = watch.isWritten();
    if (isAccepted)
        record(before, FieldCommand::noSeries, images);
    else
        before.restore(*m_field);
    refresh(); // at once, so that an edit that reports twice is heard once
    if (!isAccepted)
        tellRefused();
}

void EditManager::tellRefused()
{
    Q_EMIT message(tr("%1 does not accept what was entered.").arg(FieldText::qualifiedName(*m_field)));
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
    m_stack->push(command.release());
}

void EditManager::sfieldSetValue(SbString *previousData)
{
    const std::unique_ptr<SbString> dragged(previousData); // its text is rounded; ours is the exact value
    const OwnEdit own;
    m_hold.reset();
    if (!isListening())
        return;
    const FieldSnapshot before = dragged && m_before ? *m_before : FieldSnapshot(*m_field);
    if (dragged && m_slider && m_slider->value() == m_positionBefore) {
        before.restore(*m_field); // the way there and back has rounded it
        refresh();
        return;
    }
    if (m_line && m_line->text() == m_shownLine) {
        refresh(); // its text may tell less than the value
        return;
    }
    edit(before, [this, &before] {
        m_editor->applyChanges();
        if (m_isStandard)
            keepUntouchedParts(*m_editor, before.value(), *m_field);
    });
}

void EditManager::fieldSetDefaultValue()
{
    if (!isListening())
        return;
    const FieldSnapshot before(*m_field);
    if (refuse(before))
        return;
    auto fresh = FieldSnapshot::ofDefault(*m_field);
    if (!fresh) {
        Q_EMIT message(tr("The default of %1 is not known.").arg(FieldText::qualifiedName(*m_field)));
        return;
    }
    fresh->setIgnored(before.isIgnored());
    if (*fresh == before)
        return;
    fresh->restore(*m_field);
    m_stack->push(new FieldCommand(*m_field, before, *fresh, FieldCommand::noSeries));
    refresh();
}

void EditManager::fieldSetIgnored(bool ignored)
{
    if (!isListening() || bool(m_field->isIgnored()) == ignored)
        return;
    m_field->setIgnored(ignored); // Coin notifies, so the picture follows
    m_stack->push(new IgnoreCommand(*m_field));
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

void EditManager::remember()
{
    if (!m_field || !(m_slider || m_isMask))
        return;
    m_dragged = m_before.emplace(*m_field);
    if (m_slider)
        m_positionBefore = m_slider->value();
}

void EditManager::hold()
{
    if (!isHeld()) {
        m_hold.emplace();
        remember();
    }
}

/// Ends a press beside the handle; the end of a drag comes as a command.
void EditManager::letGo()
{
    if (isHeld() && !m_slider->isSliderDown()) {
        m_hold.reset();
        sliderStepped();
    }
}

/// A step that the editor has written, or shows only: it does not write while the slider's box is off.
void EditManager::sliderStepped()
{
    if (isHeld() && m_field)
        m_dragged.emplace(*m_field);
    const bool isTyped = m_edit && m_edit->isModified(); // a typed text moves the slider before it is committed
    if (isHeld() || isTyped || !isListening() || !m_before || m_slider->value() == m_positionBefore)
        return;
    const FieldSnapshot before = *m_before;
    if (refuse(before))
        return;
    m_editor->applyChanges();
    record(before, m_series);
    remember();
}

/// The mask's editor has written the field, and tells no manager.
void EditManager::maskClicked()
{
    if (!isListening() || !m_before)
        return;
    const FieldSnapshot before = *std::exchange(m_before, std::nullopt);
    if (refuse(before))
        return;
    record(before, FieldCommand::noSeries);
    remember();
}

bool EditManager::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (isListening() && refuse(FieldSnapshot(*m_field)))
            return true;
        hold(); // before the slider jumps to a click
        break;
    case QEvent::MouseButtonRelease:
        letGo();
        break;
    case QEvent::FocusOut:
        letGo();
        m_series = FieldCommand::newSeries();
        break;
    default:
        break;
    }
    return false;
}
