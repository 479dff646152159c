// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CELLCURSOR_H
#define CELLCURSOR_H

#include <QObject>
#include <QPersistentModelIndex>

class HbMFieldTable;
class HbTablePopupWidget;
class QFrame;

/**
 * Where the keyboard is in a table, and what its cell is edited with: an editor in the cell, the colour dialog of a
 * swatch, or the grid beside a table of matrices.
 */
class CellCursor : public QObject
{
    Q_OBJECT

public:
    /// @p grid opens the grid; null where the cells are edited in their places. Belongs to the table.
    CellCursor(HbMFieldTable &table, HbTablePopupWidget *grid);

    /// Opens the current cell. What the keys go to then; null where nothing takes any.
    QWidget *open();
    /// The edit of an open grid in which somebody types: the keys are meant for it before its window has got them.
    QWidget *pendingEdit() const;
    /// Whether what is typed on the current cell can be the start of its value.
    bool takesText() const;
    /// False if no grid was open.
    bool closeGrid();

    /// To the next cell of the row, or to the one before; false at the row's end.
    bool moveAside(int step);
    /// Commits the open editor and goes to the cell below, or by -1 to the one above, if there is one.
    void moveDown(int step);
    /// Commits the open editor and opens the next cell in reading order, or the one before, if there is one.
    void openNext(int step);

    /// To the table's ends with Ctrl, and selecting with Shift; false for other keys.
    bool jump(int key, Qt::KeyboardModifiers modifiers);

    /// Whether a cell is a colour to be looked at, which has no text.
    bool isSwatch(int column) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QModelIndex target(int key, bool isFar) const;
    void extendTo(const QModelIndex &cell);
    void currentMoved();
    QFrame *openedGrid() const;
    QWidget *openGrid();
    void choose(int row, int column);

    HbMFieldTable &m_table;
    HbTablePopupWidget *m_grid;
    QPersistentModelIndex m_anchor; ///< where a selection by Shift begins
    bool m_isDragging = false;
};

#endif
