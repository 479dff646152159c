// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSlider.h>

#include "IntegerText.h"
#include "support/CoinText.h"
#include "support/QtCompat.h"
#include "support/TranslatedTexts.h"
#include "support/WheelGuard.h"

#include <HbFieldEditorCommandManager.h>
#include <HbFieldEditors.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSlider>

HbSlider::HbSlider(SliderParentType parentType, HbFieldEditors *editor, HbFieldEditorCommandManager *commandManager,
                   QWidget *parent, int row, int col)
    : QFrame(parent), m_texts(new TranslatedTexts(this)), edit(new QLineEdit(this)), m_layout(new QHBoxLayout(this)),
      slider(new QSlider(Qt::Horizontal, this)), notifyBox(new QCheckBox(this)), parentType(parentType), editor(editor),
      commandManager(commandManager), row(row), col(col)
{
    setObjectName(QStringLiteral("HbSliderFrame"));
    const int margin = parentType == SingleField ? 2 : 0;
    m_layout->setContentsMargins(margin, margin, margin, margin);
    m_layout->setSpacing(parentType == SingleField ? 4 : 3);
    m_layout->setObjectName(QStringLiteral("nodescopeslider"));
    edit->setObjectName(QStringLiteral("edit"));
    slider->setObjectName(QStringLiteral("slider"));
    notifyBox->setObjectName(QStringLiteral("notifyBox"));
    m_layout->addWidget(notifyBox, 0);
    m_layout->addWidget(slider, 0);
    m_layout->addWidget(edit, 0);
    setTabOrder(notifyBox, slider);
    setTabOrder(slider, edit);
    slider->setTracking(true);
    ignoreWheelWithoutFocus(slider);
    m_texts->set(edit, "accessibleName", [] { return tr("Value"); });
    m_texts->set(slider, "accessibleName", [] { return tr("Value slider"); });
    m_texts->set(notifyBox, "accessibleName", [] { return tr("Change the field while dragging"); });
    m_texts->set(notifyBox, "toolTip", [] { return tr("Change the field while the slider is dragged"); });

    connect(slider, &QSlider::sliderPressed, this, &HbSlider::beginCallback);
    connect(slider, &QSlider::valueChanged, this, &HbSlider::valueChangeSlot);
    connect(slider, &QSlider::sliderReleased, this, &HbSlider::finishCallback);
    notifyBox->setChecked(notify);
    connect(edit, &QLineEdit::returnPressed, this, &HbSlider::changeValueFromEdit);
    connect(edit, &QLineEdit::editingFinished, this, &HbSlider::changeValueFromEdit);
    connect(notifyBox, &QCheckBox::toggled, this, &HbSlider::eventNotify);
    reactToSlider = true;
}

HbSlider::~HbSlider()
{
    // an edit that has the focus would report to an owner that is half gone
    for (QWidget *const child :
         {static_cast<QWidget *>(edit), static_cast<QWidget *>(notifyBox), static_cast<QWidget *>(slider)}) {
        child->disconnect(this);
        delete child;
    }
}

void HbSlider::setValue(QString) { }

void HbSlider::saveDataFromField() { }

void HbSlider::keepPreviousData(const QString &text)
{
    m_unclaimed = std::make_unique<SbString>(CoinText::toSbString(text));
    previousData = m_unclaimed.get();
}

void HbSlider::setRow(int newRow)
{
    row = newRow;
}

bool HbSlider::isEdited() const
{
    return edit->isModified();
}

bool HbSlider::isChecked() const
{
    return notifyBox->isChecked();
}

void HbSlider::setChecked(bool checked)
{
    notifyBox->setChecked(checked);
}

QString HbSlider::getValueFromEdit() const
{
    return edit->text();
}

void HbSlider::setText(QString &text)
{
    edit->setText(text);
    edit->setCursorPosition(0);
}

int HbSlider::getValue() const
{
    return slider->value();
}

QString HbSlider::getText() const
{
    return IntegerText::prefix(base) + edit->text();
}

void HbSlider::updateSlider()
{
    const QScopedValueRollback<bool> quiet(reactToSlider, false);
    slider->setValue(sliderPosition);
}

void HbSlider::setSliderMinimum(int minimum)
{
    setSliderRange(minimum, qMax(minimum, slider->maximum()));
}

void HbSlider::setSliderMaximum(int maximum)
{
    setSliderRange(qMin(maximum, slider->minimum()), maximum);
}

void HbSlider::setSliderRange(int minimum, int maximum)
{
    const QScopedValueRollback<bool> quiet(reactToSlider, false);
    QtCompat::makePaintable(minimum, maximum);
    slider->setRange(minimum, maximum);
}

template <class Report> void HbSlider::reportCell(const Report &report)
{
    const QPointer<HbFieldEditors> table(editor);
    if (table)
        table->setRefresh(false);
    report();
    if (table)
        table->setRefresh(true);
}

/// Whether the editor's field died.
bool HbSlider::isSilenced() const
{
    return editor && editor->hasLostField();
}

/// The host may delete the slider in answer: callers touch no member afterwards.
void HbSlider::reportCommand(SbString *previous)
{
    if (isSilenced())
        return;
    if (commandManager && previous && previous == m_unclaimed.get())
        m_unclaimed.release(); // the manager's from here on
    if (parentType != SingleField) {
        const QString text = getText();
        reportCell([&] {
            if (commandManager)
                commandManager->mfieldSet1Value(row, col, text, previous);
            else if (editor)
                editor->set1Value(row, col, text);
        });
    } else if (commandManager) {
        commandManager->sfieldSetValue(previous);
    } else if (editor) {
        editor->applyChanges();
    }
}

/// Writes through the editor even where there is a command manager: a drag is one command, at its end.
void HbSlider::reportLive()
{
    if (!editor || isSilenced())
        return;
    if (parentType == SingleField)
        editor->applyChanges();
    else
        reportCell([&] { editor->set1Value(row, col, getText()); });
}

void HbSlider::beginCallback()
{
    inChange = true;
    saveDataFromField();
}

void HbSlider::valueChangeSlot(int newValue)
{
    if (!reactToSlider)
        return;
    const QPointer<HbSlider> self(this);
    inChange = true;
    changeValueFromSlider(newValue);
    if (self)
        inChange = false;
}

void HbSlider::changeValueFromSlider(int position)
{
    setValueFromSlider(position);
    updateEdit();
    if (inChange && notify)
        reportLive();
}

void HbSlider::finishCallback()
{
    inChange = false;
    changeValueAfterFinish(slider->value());
}

void HbSlider::changeValueAfterFinish(int position)
{
    setValueFromSlider(position);
    reportCommand(std::exchange(previousData, nullptr));
}

void HbSlider::changeValueFromEdit()
{
    if (!isEdited())
        return;
    setValueFromEdit();
    updateSlider();
    reportCommand(nullptr);
}

void HbSlider::eventNotify(bool state)
{
    notify = state;
}
