// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CELLCLIPBOARD_H
#define CELLCLIPBOARD_H

#include "RowsCommand.h"

#include <QStringList>
#include <QVector>

class HbMFieldTable;
class HbMFieldWidget;
class QKeyEvent;
class QTableWidget;

/// The component that a column shows; -1 for the swatches that a table of colours begins with.
int componentOf(const QTableWidget &table, int column);

/**
 * Copies cells of a table to the clipboard and writes what is there into its field, as text: cells between tabs, rows
 * on lines, as spreadsheets have it. A matrix is sixteen cells, row by row.
 */
class CellClipboard
{
public:
    struct Pasted {
        RowsChange change;
        bool isChange;
        bool isAllAccepted;
    };

    CellClipboard(HbMFieldWidget &widget, HbMFieldTable &table);

    static bool isCopy(const QKeyEvent &key);
    static bool isPaste(const QKeyEvent &key);

    /// Copies the selected cells or, without any, the current one.
    void copy() const;
    /// Writes to the field, from the current cell on, and adds rows where there are not enough. The field notifies
    /// once, or not at all where nothing changes.
    Pasted paste() const;

private:
    using Cells = QVector<QStringList>;
    enum class Taken { Nothing, Some, All };

    Cells read() const;
    Taken write(const Cells &cells, int top) const;
    bool isOfMatrices() const;
    bool isOfTexts() const;
    bool writeCell(int row, int column, const QString &text) const;
    bool isMeant(const QString &shown, const QString &text, const std::vector<double> &numbers) const;
    bool writeMatrix(int row, const QStringList &numbers) const;

    HbMFieldWidget &m_widget;
    HbMFieldTable &m_table;
};

#endif
