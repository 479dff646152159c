// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFIELDTABLE_H
#define HBMFIELDTABLE_H

#include <harborapi_export.h>

#include <QBasicTimer>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QSet>
#include <QTableWidget>

#include <memory>

class ColumnWidths;
class HbFieldEditorCommandManager;
class HbMFieldTableItemDelegate;
class HbMFieldWidget;
class RowSelection;

/**
 * The table of an editor of many values.
 *
 * "+" adds a row behind the current one, "-" and Delete remove it; while Shift is held rows can be selected and are
 * removed together. Each change is one command or, without a manager, written to the field.
 *
 * While the table is visible it compares, five times a second, what its visible cells show with the field.
 */
class HARBORAPI_EXPORT HbMFieldTable : public QTableWidget
{
    Q_OBJECT

public:
    /// What a cell holds; decides its validator and, where a table has one column, its editor.
    enum MFTableTypeCell : int {
        TextCell = 0,
        ShortCell = 1, ///< 16-bit; edited with a slider
        UShortCell = 2, ///< 16-bit; edited with a slider
        WholeCell = 3, ///< 32-bit
        EmptyRangeCell = 4, ///< accepts no text
        Int32Cell = 5, ///< edited with a slider; as text it accepts none, deliberately
        UInt32Cell = 6, ///< edited with a slider; as text it accepts none, deliberately
        RealCell = 7, ///< single precision; edited with a slider
        DoubleCell = 8
    };

    /// @p owner is the table's parent. A null @p name gives the object name "HbMFieldTable".
    HbMFieldTable(HbFieldEditorCommandManager *commandManager, HbMFieldWidget *owner, const char *name);
    ~HbMFieldTable() override;

    /// Makes the delegate anew, with no settings; nothing is selected any more.
    void initClass();

    void setCellType(MFTableTypeCell type);
    /// The range of slider editors of integers.
    void setIntEditorRange(int min, int max);
    /// The range of slider editors of reals.
    void setDoubleEditorRange(double min, double max);
    /// Whether slider editors keep to their range.
    void setBoundedValue(bool bounded);

    /// Gives the table a delegate of the host's, with the cell type and ranges of the one before, which is deleted.
    void setCellDelegate(HbMFieldTableItemDelegate *delegate);

    /// Commits and closes an open cell editor; false if the host deletes the table in answer.
    bool finishEditing();

public Q_SLOTS:
    /// Gives the table that many rows; negative numbers are ignored.
    void setNumRows(int row);
    void swapUpRow();
    void swapDownRow();
    /// Removes the current row or, while Shift is held, the first range of selected rows.
    virtual void deleteRow();
    /// Adds a row behind the current one, which stays current.
    virtual void addRow();
    /// Scrolls to a row, counted from 0.
    void showTableRow(int row);
    virtual void swapRows(int row1, int row2);
    /// Keeps a slider editor whose edit has the focus or is under the pointer.
    void editorDestroyed(QObject *editor) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void commitData(QWidget *editor) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

    /// Takes the place of the delegate, which is deleted.
    void replaceDelegate(HbMFieldTableItemDelegate *delegate);

    HbMFieldWidget *m_owner;
    QPointer<HbFieldEditorCommandManager> m_commandManager;
    HbMFieldTableItemDelegate *m_delegate = nullptr;

private:
    bool isOpen(const QWidget *editor) const;
    bool isTyping() const;
    void clearTouchedCells();
    void deleteRows(int top, int count);

    std::unique_ptr<RowSelection> m_selection;
    std::unique_ptr<ColumnWidths> m_widths;
    QWidget *m_committing = nullptr; ///< the cell editor whose text is being reported
    int m_timesGivenRows = 0;
    QBasicTimer m_followTimer;
    QSet<QPersistentModelIndex> m_touched; ///< cells that hold an item
};

#endif
