// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TableControls.h"

#include "CellCursor.h"
#include "CellDelegates.h"
#include "RowBox.h"
#include "TableKeys.h"

#include <HbFieldEditorCommandManager.h>
#include <HbMFieldTable.h>
#include <HbTablePopupWidget.h>

#include <QHeaderView>
#include <QPushButton>

TableControls::TableControls(HbMFieldWidget &widget, HbMFieldTable &table, HbFieldEditorCommandManager &manager)
    : QObject(&widget), m_table(table), m_manager(&manager), m_rowBox(*new RowBox(widget, table))
{
    table.horizontalHeader()->setHidden(table.columnCount() == 1); // it would say "1"
    table.setSelectionMode(QAbstractItemView::ExtendedSelection);
    table.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    table.setTabKeyNavigation(false);
    auto *const grid = dynamic_cast<HbTablePopupWidget *>(&widget);
    if (grid)
        enableGrid(*grid);
    auto *const cursor = new CellCursor(table, grid);
    setCellDelegate(table, widget, manager, *cursor);
    const auto *const keys = new TableKeys(table, *cursor);
    connect(keys, &TableKeys::addPressed, this, &TableControls::addRow);
    connect(keys, &TableKeys::deletePressed, this, &TableControls::deleteRows);
    connect(keys, &TableKeys::copyPressed, this, &TableControls::copyWanted);
    connect(keys, &TableKeys::pastePressed, this, &TableControls::pasteWanted);
    const auto button = [&widget](const char *name) { return widget.findChild<QPushButton *>(QLatin1String(name)); };
    connect(keys, &TableKeys::movePressed, this,
            [up = button("m_upButton"), down = button("m_downButton")](int step) { (step < 0 ? up : down)->click(); });
    takeOver(widget, "m_addButton", &TableControls::addRow);
    takeOver(widget, "m_deleteButton", &TableControls::deleteRows);
}

/// The library's table of such values is disabled; it takes the clicks to choose a row all the same.
void TableControls::enableGrid(HbTablePopupWidget &grid)
{
    m_table.setEnabled(true);
    m_table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table.viewport()->removeEventFilter(&grid);
}

void TableControls::takeOver(const HbMFieldWidget &widget, const char *button, void (TableControls::*action)())
{
    auto *const taken = widget.findChild<QPushButton *>(QLatin1String(button));
    taken->disconnect(&m_table);
    connect(taken, &QPushButton::clicked, this, action);
}

void TableControls::choose(int row)
{
    if (row < m_table.rowCount())
        m_table.setCurrentCell(row, qMax(m_table.currentColumn(), 0), QItemSelectionModel::ClearAndSelect);
}

/// Behind the current row; the new one is current then.
void TableControls::addRow()
{
    if (!m_manager || !m_table.finishEditing())
        return;
    const int row = m_table.currentRow() + 1;
    const int count = m_table.rowCount();
    m_manager->mfieldAddRows(row, 1);
    if (m_table.rowCount() > count)
        choose(row);
}

/// Those that are selected. What follows them is current then.
void TableControls::deleteRows()
{
    if (!m_table.finishEditing())
        return;
    const auto rows = CellSelection::rows(CellSelection::blocks(m_table));
    const int count = m_table.rowCount();
    if (rows.empty())
        return;
    Q_EMIT deleteWanted(rows);
    if (m_table.rowCount() < count)
        choose(qMin(rows.front().top, m_table.rowCount() - 1));
}
