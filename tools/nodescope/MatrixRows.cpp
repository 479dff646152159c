// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "MatrixRows.h"

#include <HbFieldEditorCommandManager.h>
#include <HbMFieldTable.h>
#include <HbTablePopupWidget.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

MatrixRows::MatrixRows(HbTablePopupWidget &editor, HbMFieldTable &table, HbFieldEditorCommandManager &manager)
    : QObject(&editor), m_editor(editor), m_table(&table), m_manager(manager)
{
    editor.setFocusPolicy(Qt::StrongFocus);
    editor.installEventFilter(this);
    table.viewport()->installEventFilter(this);
}

bool MatrixRows::extendTo(int row)
{
    if (row < 0 || row >= m_table->rowCount() || m_table->currentRow() < 0)
        return true;
    if (m_anchor < 0)
        m_anchor = m_table->currentRow();
    m_table->setSelectionMode(QAbstractItemView::ContiguousSelection);
    m_table->setCurrentCell(row, 0, QItemSelectionModel::NoUpdate);
    m_table->clearSelection();
    m_table->setRangeSelected({qMin(m_anchor, row), 0, qMax(m_anchor, row), 0}, true);
    return true;
}

void MatrixRows::endSelection()
{
    m_anchor = -1;
    if (!m_table) // it dies before its editor
        return;
    m_table->clearSelection();
    m_table->setSelectionMode(QAbstractItemView::NoSelection);
}

void MatrixRows::removeRows()
{
    const int anchor = m_anchor;
    if (anchor < 0) {
        m_table->deleteRow();
        return;
    }
    const int current = m_table->currentRow();
    endSelection();
    m_manager.mfieldDeleteRows(qMin(anchor, current), qAbs(anchor - current) + 1);
}

void MatrixRows::openGrid()
{
    m_editor.setEditFrame();
    auto *const grid = m_editor.findChild<QFrame *>(QStringLiteral("m_popupFrame"));
    if (!grid->isVisible())
        return;
    grid->activateWindow();
    auto *const first = grid->findChild<QLineEdit *>();
    first->setFocus();
    first->selectAll();
}

bool MatrixRows::press(const QKeyEvent &key)
{
    const bool isShifted = key.modifiers() & Qt::ShiftModifier;
    switch (key.key()) {
    case Qt::Key_Up:
        return isShifted && extendTo(m_table->currentRow() - 1);
    case Qt::Key_Down:
        return isShifted && extendTo(m_table->currentRow() + 1);
    case Qt::Key_Plus:
        m_table->addRow();
        return true;
    case Qt::Key_Minus:
    case Qt::Key_Delete:
        removeRows();
        return true;
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        openGrid();
        return true;
    default:
        return false;
    }
}

bool MatrixRows::click(const QMouseEvent &press)
{
    if (!(press.modifiers() & Qt::ShiftModifier))
        return false;
    m_editor.setFocus(Qt::MouseFocusReason);
    return extendTo(m_table->rowAt(press.pos().y()));
}

bool MatrixRows::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != &m_editor)
        return event->type() == QEvent::MouseButtonPress && click(*static_cast<QMouseEvent *>(event));
    if (event->type() == QEvent::KeyPress)
        return press(*static_cast<QKeyEvent *>(event));
    const bool isRelease
        = event->type() == QEvent::KeyRelease && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Shift;
    if (m_anchor >= 0 && (isRelease || event->type() == QEvent::FocusOut))
        endSelection();
    return false;
}
