// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CellEditors.h"

#include "UndoKeys.h"

#include <HbSlider.h>

#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <utility>

CellEditors::CellEditors(HbMFieldTable &table) : m_table(&table), m_viewport(table.viewport())
{
    m_viewport->installEventFilter(this);
}

/// Where the table's editors are made is known only when they are there.
void CellEditors::adopt()
{
    if (!m_table)
        return;
    const auto edits = m_table->viewport()->findChildren<QLineEdit *>();
    for (QLineEdit *const edit : edits)
        edit->installEventFilter(this); // one that is installed already moves to the front
    const auto sliders = m_table->viewport()->findChildren<QSlider *>();
    for (const QSlider *const slider : sliders) {
        connect(slider, &QSlider::sliderPressed, this, &CellEditors::sliderPressed, Qt::UniqueConnection);
        connect(slider, &QSlider::actionTriggered, this, &CellEditors::expectStep, Qt::UniqueConnection);
        connect(slider, &QSlider::valueChanged, this, &CellEditors::sliderMoved, Qt::UniqueConnection);
    }
    Q_EMIT changed();
}

void CellEditors::expectStep()
{
    const auto &slider = static_cast<const QSlider &>(*sender());
    m_isStep = slider.sliderPosition() != slider.value();
}

/// By the user, by a text that is typed, or because the field has changed.
void CellEditors::sliderMoved()
{
    const auto &slider = static_cast<const QSlider &>(*sender());
    const bool isStep = std::exchange(m_isStep, false);
    if (slider.isSliderDown()) {
        Q_EMIT sliderDragged();
        return;
    }
    const auto *const cell = qobject_cast<const HbSlider *>(slider.parentWidget());
    Q_EMIT sliderStepped(isStep && cell && !cell->isChecked() ? cell->getText() : QString());
}

bool CellEditors::isDragging() const
{
    if (!m_table)
        return false;
    const auto sliders = m_table->viewport()->findChildren<QSlider *>();
    return std::any_of(sliders.begin(), sliders.end(), [](const QSlider *slider) { return slider->isSliderDown(); });
}

void CellEditors::finish()
{
    if (!m_table)
        return;
    const auto sliders = m_table->viewport()->findChildren<QSlider *>();
    for (QSlider *const slider : sliders)
        slider->setSliderDown(false); // which reports the drag
    m_table->finishEditing();
}

bool CellEditors::drop()
{
    if (!m_table)
        return true;
    const auto edits = m_table->viewport()->findChildren<QLineEdit *>();
    const bool isTyped = std::any_of(edits.begin(), edits.end(), [](const QLineEdit *e) { return e->isModified(); });
    const auto editors = m_table->viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *const editor : editors) {
        if (auto *const slider = editor->findChild<QSlider *>()) {
            const QSignalBlocker quiet(slider);
            slider->setSliderDown(false);
        }
        Q_EMIT m_table->itemDelegate()->closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
    }
    return !isTyped;
}

bool CellEditors::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_viewport)
        return leaveToApplication(*event);
    if (event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildRemoved)
        QMetaObject::invokeMethod(this, &CellEditors::adopt, Qt::QueuedConnection);
    return false;
}
