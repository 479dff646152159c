// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "MatrixRows.h"

#include <HbFieldEditorCommandManager.h>
#include <HbMFieldTable.h>
#include <HbTablePopupWidget.h>

#include <QHeaderView>
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

/// The row to which a key leads, which may be none of the table's; nothing for other keys.
std::optional<int> MatrixRows::target(int key) const
{
    const int current = m_table->currentRow();
    const int last = m_table->rowCount() - 1;
    const int page = qMax(1, m_table->viewport()->height() / m_table->verticalHeader()->defaultSectionSize() - 1);
    switch (key) {
    case Qt::Key_Up:
        return current - 1;
    case Qt::Key_Down:
        return current + 1;
    case Qt::Key_PageUp:
        return qMax(current - page, 0);
    case Qt::Key_PageDown:
        return qMin(current + page, last);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return {};
    }
}

bool MatrixRows::moveTo(int row)
{
    if (m_anchor >= 0)
        endSelection();
    if (row >= 0 && row < m_table->rowCount())
        m_table->setCurrentCell(row, 0);
    return true;
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

/// The first one of a table is current then.
void MatrixRows::addRow()
{
    m_table->addRow();
    if (m_table && m_table->currentRow() < 0)
        m_table->setCurrentCell(0, 0);
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
    if (const auto row = target(key.key()))
        return key.modifiers() & Qt::ShiftModifier ? extendTo(*row) : moveTo(*row);
    switch (key.key()) {
    case Qt::Key_Plus:
        addRow();
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
    if (!(press.modifiers() & Qt::ShiftModifier)) {
        if (m_anchor >= 0)
            endSelection();
        return false;
    }
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
