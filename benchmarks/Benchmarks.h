// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef BENCHMARKS_H
#define BENCHMARKS_H

class QString;

/// Building one editor of each kind, against the same controls laid out by hand.
void addEditorBenchmarks();
/// Finding the editor for a node among ten thousand.
void addRegistryBenchmarks();
/// A table of many values, against tables of plain Qt.
void addTableBenchmarks();
/// Painting and dragging in a table, and leaving it alone.
void addCellBenchmarks();
/// Many values in the tool's panel, with undo.
void addTablePanelBenchmarks();
/// Selecting nodes in the tool's panel, and its answer to changes made elsewhere.
void addPanelBenchmarks();
/// Opening @p file as a document; an empty one stands for the largest model that is installed.
void addSceneBenchmarks(const QString &file);

#endif
