// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CELLSELECTION_H
#define CELLSELECTION_H

#include <QModelIndex>

#include <vector>

class QTableWidget;

/// What is selected in a table, told by its blocks: it costs the same for a million rows as for ten.
namespace CellSelection
{
/// Rows from the first to the last.
struct Rows {
    int top;
    int bottom;

    int count() const { return bottom - top + 1; }
};

/// Of components, not columns: a swatch stands for the three of its colour.
struct Block {
    Rows rows;
    int left;
    int right;
};

/// The component that a column shows; -1 for the swatches that a table of colours begins with.
int componentOf(const QTableWidget &table, int column);
int componentCount(const QTableWidget &table);

/// The current cell where nothing is selected; none without one.
std::vector<Block> blocks(const QTableWidget &table);
/// The rows of the blocks, from above, each once.
std::vector<Rows> rows(const std::vector<Block> &blocks);
/// The components of the blocks, from the left, each once.
std::vector<int> components(const std::vector<Block> &blocks);

/// The first cell of the block around the current cell, or that cell.
QModelIndex start(const QTableWidget &table);
} // namespace CellSelection

#endif
