// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CellEditors.h"

#include "SliderEdit.h"
#include "TypedNumber.h"
#include "UndoKeys.h"

#include <HbSlider.h>

#include <QChildEvent>
#include <QCoreApplication>
#include <QLineEdit>
#include <QUndoStack>

#include <algorithm>

CellEditors::CellEditors(HbMFieldTable &table, SliderTarget &target, QUndoStack *stack)
    : m_table(&table), m_viewport(table.viewport()), m_target(target), m_stack(stack)
{
    m_viewport->installEventFilter(this);
}

CellEditors::~CellEditors() = default;

/// Where the table's editors are made is known only when they are there.
void CellEditors::adopt()
{
    if (!m_table)
        return;
    const auto edits = m_table->viewport()->findChildren<QLineEdit *>();
    for (QLineEdit *const edit : edits)
        edit->installEventFilter(this); // one that is installed already moves to the front
    const auto isDead = [](const auto &edit) { return !edit->slider(); };
    m_sliders.erase(std::remove_if(m_sliders.begin(), m_sliders.end(), isDead), m_sliders.end());
    const auto sliders = m_table->viewport()->findChildren<HbSlider *>();
    for (HbSlider *const slider : sliders)
        adoptSlider(*slider);
    Q_EMIT changed();
}

void CellEditors::adoptSlider(HbSlider &slider)
{
    const auto isSame = [&](const auto &edit) { return edit->slider() == &slider; };
    if (!m_stack || std::any_of(m_sliders.begin(), m_sliders.end(), isSame))
        return;
    m_sliders.push_back(std::make_unique<SliderEdit>(slider, m_target, m_stack));
    m_sliders.back()->show([] {});
}

void CellEditors::beginSeries()
{
    for (const auto &slider : m_sliders)
        slider->beginSeries();
}

void CellEditors::refresh()
{
    for (const auto &slider : m_sliders)
        slider->show([] {});
}

void CellEditors::letGo()
{
    for (const auto &slider : m_sliders)
        slider->letGo();
}

void CellEditors::finish()
{
    if (!m_table)
        return;
    letGo();
    m_table->finishEditing();
}

bool CellEditors::drop()
{
    if (!m_table)
        return true;
    const auto edits = m_table->viewport()->findChildren<QLineEdit *>();
    const bool isTyped = std::any_of(edits.begin(), edits.end(), [](const QLineEdit *e) { return e->isModified(); });
    for (const auto &slider : m_sliders)
        slider->abandon();
    const auto editors = m_table->viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *const editor : editors)
        Q_EMIT m_table->itemDelegate()->closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
    return !isTyped;
}

/// Tab in a slider's edit goes on to the next cell, as in one that is an edit only.
bool CellEditors::passToSlider(QObject *edit, QEvent &event)
{
    auto *const slider = qobject_cast<HbSlider *>(edit->parent());
    const bool isTab = event.type() == QEvent::KeyPress && static_cast<QKeyEvent &>(event).key() == Qt::Key_Tab;
    if (!slider || !isTab)
        return false;
    auto *const number = edit->findChild<TypedNumber *>();
    return (number && !number->settle()) || QCoreApplication::sendEvent(slider, &event);
}

bool CellEditors::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_viewport)
        return leaveToApplication(*event) || passToSlider(watched, *event);
    if (event->type() == QEvent::ChildPolished)
        if (auto *const editor = qobject_cast<QWidget *>(static_cast<QChildEvent *>(event)->child()))
            Q_EMIT made(editor);
    if (event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildRemoved)
        QMetaObject::invokeMethod(this, &CellEditors::adopt, Qt::QueuedConnection);
    return false;
}
