// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TABLECONTROLS_H
#define TABLECONTROLS_H

#include "CellSelection.h"

#include <QObject>
#include <QPointer>

class HbFieldEditorCommandManager;
class HbMFieldTable;
class HbMFieldWidget;
class HbTablePopupWidget;
class RowBox;

/// Lets the table of an editor behave as tables do elsewhere: its keys, its selection, its buttons and scroll bars.
class TableControls : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the editor.
    TableControls(HbMFieldWidget &widget, HbMFieldTable &table, HbFieldEditorCommandManager &manager);

    /// The box that tells the current row.
    RowBox &rowBox() const { return m_rowBox; }

Q_SIGNALS:
    void deleteWanted(const std::vector<CellSelection::Rows> &rows);
    void copyWanted();
    void pasteWanted();

private:
    void enableGrid(HbTablePopupWidget &grid);
    void takeOver(const HbMFieldWidget &widget, const char *button, void (TableControls::*action)());
    void addRow();
    void deleteRows();
    void choose(int row);

    HbMFieldTable &m_table;
    QPointer<HbFieldEditorCommandManager> m_manager;
    RowBox &m_rowBox;
};

#endif
