// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef MATRIXROWS_H
#define MATRIXROWS_H

#include <HbMFieldTable.h>

#include <QObject>
#include <QPointer>

#include <optional>

class HbFieldEditorCommandManager;
class HbTablePopupWidget;
class QKeyEvent;
class QMouseEvent;

/**
 * The keys that other tables know by themselves, for a table of matrices: that one is disabled, and its editor has the
 * keyboard. "+" adds a row, "-" and Delete remove rows, the arrows, Page Up and Down, Home and End choose a row and,
 * with Shift, select, F2 and Return open the grid.
 */
class MatrixRows : public QObject
{
public:
    /// Belongs to the editor.
    MatrixRows(HbTablePopupWidget &editor, HbMFieldTable &table, HbFieldEditorCommandManager &manager);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool press(const QKeyEvent &key);
    bool click(const QMouseEvent &press);
    std::optional<int> target(int key) const;
    bool moveTo(int row);
    bool extendTo(int row);
    void addRow();
    void removeRows();
    void openGrid();
    void endSelection();

    HbTablePopupWidget &m_editor;
    QPointer<HbMFieldTable> m_table;
    HbFieldEditorCommandManager &m_manager;
    int m_anchor = -1; ///< where the selection began; -1 without one
};

#endif
