// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TABLEKEYS_H
#define TABLEKEYS_H

#include <QObject>

class CellCursor;
class HbMFieldTable;
class QKeyEvent;

/**
 * The keys of a table, as spreadsheets have them: what can be text starts a cell's value, Insert and Delete are for
 * rows, Alt with Up and Down moves one, Return and F2 open the cell, Tab goes to the right.
 *
 * It sees them before the table, which would take "+" and "-" for rows and let cells be selected with Shift only.
 */
class TableKeys : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the table.
    TableKeys(HbMFieldTable &table, CellCursor &cursor);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void addPressed();
    void deletePressed();
    void movePressed(int step);
    void copyPressed();
    void pastePressed();

private:
    bool isInCell() const;
    bool press(QKeyEvent &key);
    void startText(QKeyEvent &key);

    HbMFieldTable &m_table;
    CellCursor &m_cursor;
};

#endif
