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
class TableControls;
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
    ~TableManager() override;

    void setEditor(HbFieldEditors *editor) override;
    void setField(SoField *field) override;
    void refresh() override;
    void finish() override;
    void letGo() override;

    void mfieldSwapRows(int first, int second) override;
    void mfieldSwapColumns(int first, int second) override;
    void mfieldDeleteRows(int topRow, int numValues) override;
    void mfieldAddRows(int row, int numRows) override;
    void mfieldSet1Value(int row, int col, QString text, SbString *previousData) override;
    void mfieldSetValue(int row, const void *data) override;

protected:
    void dropTyped() override;
    std::optional<double> slidNumber(const HbSlider &slider) const override;
    bool beginSlide(const HbSlider &slider) override;
    void slide(const HbSlider &slider) override;
    bool isAsSlid() const override;
    void dropSlid() override;
    void putBack(HbSlider &slider) override;
    void endSlide(int series) override;

private:
    SoMField *rows() const;
    bool mayEdit();
    int rowOf(const HbSlider &slider) const;
    bool holdsSlid() const;
    bool isShown(int row, const QString &shown, const QString &text) const;
    void editRow(int row, std::shared_ptr<SoMField> before, bool wasDefault, const std::function<void()> &write);
    void record(std::vector<RowsChange> changes, bool wasDefault, int series);
    void replace(int row, int count, std::shared_ptr<SoMField> values);

    void removeRows(const std::vector<CellSelection::Rows> &ranges);
    void showSomeRows();
    bool dropMisplaced();
    void supplyText();

    void cellOpened(QWidget *cellEditor);
    bool readTyped(QString &text);
    void enterGrid();
    void paste();

    HbMFieldTable *m_table = nullptr; ///< null in an editor without one
    std::optional<CellEditors> m_cells;
    std::optional<CellClipboard> m_clipboard;
    std::optional<CellSupply> m_supply;
    QPointer<TableControls> m_controls;
    int m_count = 0; ///< of the values, when they were last shown
    RowsChange m_slid{-1, {}, {}}; ///< the row before a slider in it moved, and what that left there
    bool m_wasDefault = false; ///< before
    bool m_isSlidDefault = false; ///< after
    NumberForm m_form; ///< of what is typed in a cell
    bool m_isEntering = false; ///< what was typed in a grid
};

#endif
