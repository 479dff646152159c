// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CellSelection.h"

#include <HbMFColorTable.h>

#include <algorithm>
#include <set>

namespace
{
CellSelection::Block blockOf(const QTableWidget &table, const QItemSelectionRange &range)
{
    const int left = CellSelection::componentOf(table, range.left());
    const bool isWithSwatch = left < 0;
    return {{range.top(), range.bottom()},
            qMax(left, 0),
            isWithSwatch ? CellSelection::componentCount(table) - 1 : CellSelection::componentOf(table, range.right())};
}
} // namespace

int CellSelection::componentOf(const QTableWidget &table, int column)
{
    return qobject_cast<const HbMFColorTable *>(&table) ? column - 1 : column;
}

int CellSelection::componentCount(const QTableWidget &table)
{
    return componentOf(table, table.columnCount());
}

std::vector<CellSelection::Block> CellSelection::blocks(const QTableWidget &table)
{
    std::vector<Block> blocks;
    const QItemSelection selected = table.selectionModel()->selection();
    for (const QItemSelectionRange &range : selected)
        if (range.isValid())
            blocks.push_back(blockOf(table, range));
    if (blocks.empty() && table.currentIndex().isValid())
        blocks.push_back(blockOf(table, QItemSelectionRange(table.currentIndex())));
    return blocks;
}

std::vector<CellSelection::Rows> CellSelection::rows(const std::vector<Block> &blocks)
{
    std::vector<Rows> sorted;
    for (const Block &block : blocks)
        sorted.push_back(block.rows);
    std::sort(sorted.begin(), sorted.end(), [](const Rows &a, const Rows &b) { return a.top < b.top; });
    std::vector<Rows> joined;
    for (const Rows &rows : sorted) {
        if (!joined.empty() && rows.top <= joined.back().bottom + 1)
            joined.back().bottom = qMax(joined.back().bottom, rows.bottom);
        else
            joined.push_back(rows);
    }
    return joined;
}

std::vector<int> CellSelection::components(const std::vector<Block> &blocks)
{
    std::set<int> all;
    for (const Block &block : blocks)
        for (int component = block.left; component <= block.right; ++component)
            all.insert(component);
    return {all.begin(), all.end()};
}

QModelIndex CellSelection::start(const QTableWidget &table)
{
    const QModelIndex current = table.currentIndex();
    const QItemSelection selected = table.selectionModel()->selection();
    for (const QItemSelectionRange &range : selected)
        if (range.contains(current))
            return range.topLeft();
    return current;
}
