// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CELLDELEGATES_H
#define CELLDELEGATES_H

class CellCursor;
class HbFieldEditorCommandManager;
class HbMFieldTable;
class HbMFieldWidget;

/// Lets a table paint as selected what is selected, and frame the current cell; its rows of matrices tell their own
/// value each, and its cell editors go on with the next cell at Tab and Return.
void setCellDelegate(HbMFieldTable &table, HbMFieldWidget &widget, HbFieldEditorCommandManager &manager,
                     CellCursor &cursor);

#endif
