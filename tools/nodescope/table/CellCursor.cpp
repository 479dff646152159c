// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CellCursor.h"

#include <HbMFColorTable.h>
#include <HbTablePopupWidget.h>

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>

#include <algorithm>

CellCursor::CellCursor(HbMFieldTable &table, HbTablePopupWidget *grid) : QObject(&table), m_table(table), m_grid(grid)
{
    table.viewport()->installEventFilter(this);
    connect(&table, &QTableWidget::currentCellChanged, this, &CellCursor::currentMoved);
    if (grid)
        connect(&table, &QTableWidget::cellDoubleClicked, this, &CellCursor::open);
}

bool CellCursor::isSwatch(int column) const
{
    return column == 0 && qobject_cast<const HbMFColorTable *>(&m_table);
}

bool CellCursor::takesText() const
{
    return m_table.currentIndex().isValid() && !isSwatch(m_table.currentColumn());
}

QWidget *CellCursor::open()
{
    const QModelIndex cell = m_table.currentIndex();
    if (!cell.isValid())
        return nullptr;
    if (m_grid)
        return openGrid();
    if (isSwatch(cell.column())) {
        static_cast<HbMFColorTable &>(m_table).getColorFromEditor(cell.row(), cell.column());
        return nullptr;
    }
    m_table.scrollTo(cell);
    if (!m_table.indexWidget(cell)) // Qt complains about a cell that is open
        m_table.edit(cell);
    QWidget *editor = m_table.indexWidget(cell);
    while (editor && editor->focusProxy())
        editor = editor->focusProxy();
    return editor;
}

QWidget *CellCursor::openGrid()
{
    auto *const frame = m_grid->findChild<QFrame *>(QStringLiteral("m_popupFrame"));
    if (!frame->isVisible())
        m_grid->setEditFrame();
    frame->activateWindow();
    auto *const first = frame->findChild<QLineEdit *>();
    first->setFocus();
    first->selectAll();
    return first;
}

QFrame *CellCursor::openedGrid() const
{
    auto *const frame = m_grid ? m_grid->findChild<QFrame *>(QStringLiteral("m_popupFrame")) : nullptr;
    return frame && frame->isVisible() ? frame : nullptr;
}

QWidget *CellCursor::pendingEdit() const
{
    const QFrame *const frame = openedGrid();
    auto *const edit = frame ? qobject_cast<QLineEdit *>(frame->focusWidget()) : nullptr;
    return edit && edit->isModified() ? edit : nullptr;
}

bool CellCursor::closeGrid()
{
    QFrame *const frame = openedGrid();
    if (!frame)
        return false;
    frame->hide();
    return true;
}

/// Qt would add it to the selection while Ctrl is held.
void CellCursor::choose(int row, int column)
{
    m_table.setCurrentCell(row, column, QItemSelectionModel::ClearAndSelect);
    m_table.scrollTo(m_table.currentIndex());
}

bool CellCursor::moveAside(int step)
{
    const int column = m_table.currentColumn() + step;
    if (m_table.currentRow() < 0 || column < 0 || column >= m_table.columnCount())
        return false;
    choose(m_table.currentRow(), column);
    return true;
}

/// The cell to which a key leads; none for other keys.
QModelIndex CellCursor::target(int key, bool isFar) const
{
    const QAbstractItemModel &model = *m_table.model();
    const int row = m_table.currentRow();
    const int column = m_table.currentColumn();
    const int lastRow = model.rowCount() - 1;
    const int lastColumn = model.columnCount() - 1;
    const int page = qMax(1, m_table.viewport()->height() / m_table.verticalHeader()->defaultSectionSize() - 1);
    switch (key) {
    case Qt::Key_Up:
        return model.index(isFar ? 0 : qMax(row - 1, 0), column);
    case Qt::Key_Down:
        return model.index(isFar ? lastRow : qMin(row + 1, lastRow), column);
    case Qt::Key_Left:
        return model.index(row, isFar ? 0 : qMax(column - 1, 0));
    case Qt::Key_Right:
        return model.index(row, isFar ? lastColumn : qMin(column + 1, lastColumn));
    case Qt::Key_Home:
        return model.index(isFar ? 0 : row, 0);
    case Qt::Key_End:
        return model.index(isFar ? lastRow : row, lastColumn);
    case Qt::Key_PageUp:
        return model.index(qMax(row - page, 0), column);
    case Qt::Key_PageDown:
        return model.index(qMin(row + page, lastRow), column);
    default:
        return {};
    }
}

bool CellCursor::jump(int key, Qt::KeyboardModifiers modifiers)
{
    const bool isExtending = modifiers & Qt::ShiftModifier;
    const bool isFar = modifiers & Qt::ControlModifier;
    const QModelIndex cell = m_table.currentIndex().isValid() ? target(key, isFar) : QModelIndex();
    if (!cell.isValid() || !(isExtending || isFar))
        return false;
    if (isExtending)
        extendTo(cell);
    else
        choose(cell.row(), cell.column());
    return true;
}

void CellCursor::extendTo(const QModelIndex &cell)
{
    const QModelIndex anchor = m_anchor.isValid() ? QModelIndex(m_anchor) : m_table.currentIndex();
    const auto corner = [&](const int &(*pick)(const int &, const int &)) {
        return cell.sibling(pick(anchor.row(), cell.row()), pick(anchor.column(), cell.column()));
    };
    m_table.setCurrentCell(cell.row(), cell.column(), QItemSelectionModel::NoUpdate);
    m_table.selectionModel()->select(QItemSelection(corner(std::min), corner(std::max)),
                                     QItemSelectionModel::ClearAndSelect);
    m_table.scrollTo(cell);
    m_anchor = anchor;
}

/// Unless it is a selection that is growing.
void CellCursor::currentMoved()
{
    if (!m_isDragging && !(QApplication::keyboardModifiers() & Qt::ShiftModifier))
        m_anchor = m_table.currentIndex();
}

bool CellCursor::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        const auto &press = static_cast<const QMouseEvent &>(*event);
        m_isDragging = true;
        if (!(press.modifiers() & Qt::ShiftModifier))
            m_anchor = m_table.indexAt(press.pos());
    } else if (event->type() == QEvent::MouseButtonRelease) {
        m_isDragging = false;
    }
    return false;
}

void CellCursor::moveDown(int step)
{
    const int row = m_table.currentRow() + step;
    if (m_table.finishEditing() && row >= 0 && row < m_table.rowCount())
        choose(row, m_table.currentColumn());
}

void CellCursor::openNext(int step)
{
    int row = m_table.currentRow();
    int column = m_table.currentColumn();
    if (!m_table.finishEditing())
        return;
    do {
        column += step;
        if (column < 0 || column >= m_table.columnCount()) {
            row += step;
            column = step > 0 ? 0 : m_table.columnCount() - 1;
        }
    } while (isSwatch(column));
    if (row < 0 || row >= m_table.rowCount())
        return;
    choose(row, column);
    open();
}
