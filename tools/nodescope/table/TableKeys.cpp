// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TableKeys.h"

#include "CellCursor.h"

#include <HbMFieldTable.h>

#include <QApplication>
#include <QKeyEvent>

namespace
{
constexpr Qt::KeyboardModifiers commandKeys = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

bool isCopy(const QKeyEvent &key)
{
    const bool isWithShift = key.key() == Qt::Key_C && key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    return key.matches(QKeySequence::Copy) || isWithShift; // which may still be held from selecting
}

bool isText(const QKeyEvent &key)
{
    const QString text = key.text();
    return !(key.modifiers() & commandKeys) && !text.isEmpty() && (text.at(0).isPrint() || text.at(0).isSurrogate());
}

/// By how many rows a key moves the current one.
int moveOf(const QKeyEvent &key)
{
    const bool isAlt = (key.modifiers() & ~Qt::KeypadModifier) == Qt::AltModifier;
    return !isAlt ? 0 : key.key() == Qt::Key_Up ? -1 : key.key() == Qt::Key_Down ? 1 : 0;
}

/// Whether the table wants a key that may be a shortcut of the window as well.
bool isWanted(const QKeyEvent &key)
{
    if (isText(key) || isCopy(key) || key.matches(QKeySequence::Paste) || key.matches(QKeySequence::SelectAll))
        return true;
    if (moveOf(key) != 0)
        return true;
    if (key.modifiers() & (Qt::AltModifier | Qt::MetaModifier))
        return false;
    switch (key.key()) {
    case Qt::Key_Insert:
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
        return !(key.modifiers() & Qt::ControlModifier);
    default:
        return key.key() >= Qt::Key_Home && key.key() <= Qt::Key_PageDown; // arrows are between them
    }
}
} // namespace

TableKeys::TableKeys(HbMFieldTable &table, CellCursor &cursor) : QObject(&table), m_table(table), m_cursor(cursor)
{
    table.installEventFilter(this);
}

/// An editor's keys are its own, also those that it does not use.
bool TableKeys::isInCell() const
{
    const QWidget *const focused = QApplication::focusWidget();
    return focused && focused != &m_table && focused != m_table.viewport() && m_table.isAncestorOf(focused);
}

bool TableKeys::eventFilter(QObject *, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease && type != QEvent::ShortcutOverride)
        return false;
    auto &key = static_cast<QKeyEvent &>(*event);
    if (key.key() == Qt::Key_Shift)
        return true; // the table would begin or end a selection of its own
    if (type == QEvent::KeyRelease || isInCell())
        return false;
    if (type == QEvent::KeyPress)
        return press(key);
    if (isWanted(key))
        key.accept();
    return false;
}

bool TableKeys::press(QKeyEvent &key)
{
    QWidget *const pending = m_cursor.pendingEdit();
    if (pending && (isText(key) || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter))
        return QCoreApplication::sendEvent(pending, &key);
    if (isCopy(key)) {
        Q_EMIT copyPressed();
        return true;
    }
    if (key.matches(QKeySequence::Paste)) {
        Q_EMIT pastePressed();
        return true;
    }
    if (const int step = moveOf(key)) {
        Q_EMIT movePressed(step);
        return true;
    }
    switch (key.key()) {
    case Qt::Key_Insert:
        Q_EMIT addPressed();
        return true;
    case Qt::Key_Delete:
        Q_EMIT deletePressed();
        return true;
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_cursor.open();
        return true;
    case Qt::Key_Escape:
        return m_cursor.closeGrid();
    case Qt::Key_Tab:
        return m_cursor.moveAside(1); // behind the last column it leaves the table
    case Qt::Key_Backtab:
        return m_cursor.moveAside(-1);
    default:
        if (!isText(key))
            return m_cursor.jump(key.key(), key.modifiers());
        startText(key);
        return true;
    }
}

/// The editor opens with its text selected, so that the key takes its place.
void TableKeys::startText(QKeyEvent &key)
{
    if (!m_cursor.takesText())
        return;
    if (QWidget *const editor = m_cursor.open())
        QCoreApplication::sendEvent(editor, &key);
}
