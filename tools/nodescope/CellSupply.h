// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CELLSUPPLY_H
#define CELLSUPPLY_H

#include <QPersistentModelIndex>

class HbMFieldTable;
class HbMFieldWidget;

/// Gives the current cell of a table the text that it shows: cells hold none, so that an editor would open empty.
class CellSupply
{
public:
    CellSupply(HbMFieldWidget &widget, HbMFieldTable &table);

    /// When the current cell or its value is another; leaves a cell alone in which somebody types.
    void supply();

private:
    bool isInUse(const QModelIndex &cell) const;

    HbMFieldWidget &m_widget;
    HbMFieldTable &m_table;
    QPersistentModelIndex m_supplied;
};

#endif
