// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TABLEMANAGER_H
#define TABLEMANAGER_H

#include "CellClipboard.h"
#include "CellEditors.h"
#include "CellSupply.h"
#include "EditManager.h"
#include "RowsCommand.h"

#include <optional>

class HbMFieldTable;
class SoMField;

/**
 * Turns the edits of an editor of many values into undo steps, which hold what changed and not the whole field.
 *
 * It also lets cells be edited from the value that they show, and copied and pasted as text.
 */
class TableManager : public EditManager
{
    Q_OBJECT

public:
    using EditManager::EditManager;

    void setEditor(HbFieldEditors *editor) override;
    void setField(SoField *field) override;
    void refresh() override;
    void finish() override;

    void mfieldSwapRows(int first, int second) override;
    void mfieldSwapColumns(int first, int second) override;
    void mfieldDeleteRows(int topRow, int numValues) override;
    void mfieldAddRows(int row, int numRows) override;
    void mfieldSet1Value(int row, int col, QString text, SbString *previousData) override;
    void mfieldSetValue(int row, const void *data) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    SoMField *rows() const;
    bool mayEdit(const RowsChange *restored);
    void editRow(int row, std::shared_ptr<SoMField> before, bool wasDefault, const std::function<void()> &write);
    void record(std::vector<RowsChange> changes, bool wasDefault, int series);
    void replace(int row, int count, std::shared_ptr<SoMField> values);

    void showSomeRows();
    bool dropMisplaced();
    void remember();
    void noteDrag();
    void cellEditorsChanged();
    void sliderStepped(const QString &unwritten);
    void stackMoved();
    void supplyText();

    void paste();

    HbMFieldTable *m_table = nullptr; ///< null in an editor without one
    QObject *m_keyboard = nullptr; ///< what has the focus in the table's place
    std::optional<CellEditors> m_cells;
    std::optional<CellClipboard> m_clipboard;
    std::optional<CellSupply> m_supply;
    int m_count = 0; ///< of the values, when they were last shown
    RowsChange m_rowBefore{-1, {}, {}}; ///< the current row before a slider in it moves
    std::shared_ptr<SoMField> m_dragged; ///< what a held slider left there
    bool m_wasDefault = false; ///< then
    int m_rowSeries = 0;
};

#endif
