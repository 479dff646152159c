// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CELLCLIPBOARD_H
#define CELLCLIPBOARD_H

#include "CellSelection.h"
#include "NumberForm.h"
#include "RowsCommand.h"

#include <QStringList>
#include <QVector>

#include <optional>

class HbMFieldTable;
class HbMFieldWidget;

/**
 * Copies cells of a table to the clipboard and writes what is there into its field, as text: cells between tabs, rows
 * on lines, as spreadsheets have it. A matrix is sixteen cells, row by row. Numbers have all their digits; whole rows
 * are kept beside their text as well, for the fields of this program.
 */
class CellClipboard
{
public:
    struct Pasted {
        RowsChange change;
        bool isChange;
        bool isAllAccepted;
        QString refusal; ///< why the first one was not, where that is known
    };

    CellClipboard(HbMFieldWidget &widget, HbMFieldTable &table);

    /// Copies the selected cells or, without any, the current one. Of several blocks, the rows and columns in which
    /// nothing is selected are left out, and other cells between them are empty.
    void copy() const;
    /// Writes to the field, whose cells hold numbers of this form, from the current cell or the start of the block
    /// around it on, and adds rows where there are not enough. One cell or row fills the selected block. Values as
    /// scene files have them make whole rows. An empty cell changes nothing, but among texts. The
    /// field notifies once, or not at all where nothing changes.
    Pasted paste(const NumberForm &form) const;

private:
    using Cells = QVector<QStringList>;
    enum class Taken { Nothing, Some, All };
    /// How the texts are read, and why the first one could not be.
    struct Reader {
        NumberForm form;
        QString refusal;

        std::optional<QString> plain(const QString &text);
    };

    QStringList textsOf(int row) const;
    QString textOf(const std::vector<CellSelection::Block> &blocks) const;
    std::shared_ptr<SoMField> wholeRows(const std::vector<CellSelection::Block> &blocks) const;

    Cells read(const NumberForm &form) const;
    int selectedRows() const;
    void fillSelection(Cells &cells) const;
    Taken write(const Cells &cells, int top, int left, Reader &reader) const;
    bool isOfMatrices() const;
    bool isOfTexts() const;
    bool writeCell(int row, int column, const QString &text, Reader &reader) const;
    bool isMeant(const QString &shown, const QString &text, const std::vector<double> &numbers) const;
    bool writeMatrix(int row, const QStringList &numbers, Reader &reader) const;

    HbMFieldWidget &m_widget;
    HbMFieldTable &m_table;
};

#endif
