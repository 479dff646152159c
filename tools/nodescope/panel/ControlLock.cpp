// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ControlLock.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSlider>
#include <QSpinBox>

#include <algorithm>

namespace
{
/// Those that are no edits, or that only open what shows the value.
bool isHarmless(const QWidget &control)
{
    static const QLatin1String names[] = {QLatin1String("m_ignoreButton"), QLatin1String("m_defaultButton"),
                                          QLatin1String("m_editButton"), QLatin1String("m_accessBox")};
    return std::any_of(std::begin(names), std::end(names),
                       [&](const QLatin1String &name) { return control.objectName() == name; });
}

bool isReading(const QKeyEvent &key)
{
    static constexpr int keys[]
        = {Qt::Key_Up,  Qt::Key_Down, Qt::Key_Left,    Qt::Key_Right,  Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,
           Qt::Key_End, Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Menu,   Qt::Key_Control,  Qt::Key_Shift};
    if (key.matches(QKeySequence::Copy) || key.matches(QKeySequence::SelectAll))
        return true;
    return std::find(std::begin(keys), std::end(keys), key.key()) != std::end(keys);
}
} // namespace

ControlLock::ControlLock(QWidget &editor) : m_editor(editor) { }

void ControlLock::setLocked(bool locked)
{
    if (locked == std::exchange(m_locked, locked))
        return;
    for (const auto &takeBack : std::exchange(m_changes, {}))
        takeBack();
    if (!locked)
        return;
    const auto controls = m_editor.findChildren<QWidget *>();
    for (QWidget *const control : controls)
        lock(control);
}

template <class Control> void ControlLock::change(Control *control, void (Control::*set)(bool), bool to)
{
    (control->*set)(to);
    m_changes.push_back([control = QPointer<Control>(control), set, to] {
        if (control)
            (control->*set)(!to);
    });
}

void ControlLock::lock(QWidget *control)
{
    if (isHarmless(*control) || isHarmless(*control->parentWidget()) || control->testAttribute(Qt::WA_ForceDisabled))
        return;
    if (auto *const edit = qobject_cast<QLineEdit *>(control); edit && !edit->isReadOnly())
        change(edit, &QLineEdit::setReadOnly, true);
    else if (auto *const box = qobject_cast<QAbstractSpinBox *>(control))
        change(box, &QAbstractSpinBox::setReadOnly, true);
    else if (qobject_cast<QAbstractButton *>(control) || qobject_cast<QComboBox *>(control)
             || qobject_cast<QSlider *>(control))
        change(control, &QWidget::setEnabled, false);
    else if (auto *const table = qobject_cast<QAbstractItemView *>(control))
        lockTable(table);
}

void ControlLock::lockTable(QAbstractItemView *table)
{
    const auto triggers = table->editTriggers();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->installEventFilter(this);
    table->viewport()->installEventFilter(this);
    m_changes.push_back([this, table = QPointer<QAbstractItemView>(table), triggers] {
        if (!table)
            return;
        table->setEditTriggers(triggers);
        table->removeEventFilter(this);
        table->viewport()->removeEventFilter(this);
    });
}

/// A table's.
bool ControlLock::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonDblClick)
        return true;
    return event->type() == QEvent::KeyPress && !isReading(static_cast<QKeyEvent &>(*event));
}
