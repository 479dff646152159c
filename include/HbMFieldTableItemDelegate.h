// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFIELDTABLEITEMDELEGATE_H
#define HBMFIELDTABLEITEMDELEGATE_H

#include <harborapi_export.h>

#include <QHash>
#include <QItemDelegate>
#include <QPersistentModelIndex>
#include <QPointer>

#include <vector>

class HbFieldEditorCommandManager;
class HbMFieldWidget;
class QAbstractItemView;
class QLineEdit;

/// Paints the cells of an HbMFieldTable from the owner's texts and makes their editors.
class HARBORAPI_EXPORT HbMFieldTableItemDelegate : public QItemDelegate
{
public:
    /// Nothing is owned; the manager may be null or die first.
    HbMFieldTableItemDelegate(HbFieldEditorCommandManager *commandManager, HbMFieldWidget *owner, QObject *parent);
    ~HbMFieldTableItemDelegate() override;

    /// An HbMFieldTable::MFTableTypeCell; 0 at first.
    void setCellType(int type);
    /// 0 to 10 at first.
    void setIntEditorRange(int min, int max);
    /// 0 to 10 at first.
    void setDoubleEditorRange(double min, double max);
    /// False at first.
    void setBoundedValue(bool bounded);
    /// The cell type and ranges of another.
    void takeSettings(const HbMFieldTableItemDelegate &other);

    /// Fills the cell with the highlight colour in an active view, and writes the text, cut to what fits.
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// Shows the text that was last entered in the cell, which is none for most.
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    /// Reports a text that was modified and that the validator accepts.
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    /// Installs the cell type's validator.
    virtual void setValidator(QLineEdit *edit) const;

    /// The cells among the visible ones that show another text than the field holds by now.
    void updateChangedCells(QAbstractItemView *view) const;
    /// The editors that are open in cells of @p view: one, or more where a host has opened some that stay.
    std::vector<QWidget *> openEditors(const QAbstractItemView &view) const;
    /// Whether the editor was made here, and not by a derived class or another delegate of the table.
    bool hasMade(const QWidget *editor) const;
    /// Tells slider editors where they are after rows were added or removed.
    void renumberEditors() const;
    /// Takes the text of an editor that is open.
    void commit(QWidget *editor, QAbstractItemModel *model) const;

protected:
    /// What a cell is to show, at least @p limit characters of it.
    virtual QString textToShow(const QModelIndex &index, int limit) const;
    void paintText(QPainter *painter, const QStyleOptionViewItem &option, const QString &text) const;
    /// Reports an accepted text for a cell of the field and writes it to the model.
    void commitText(QLineEdit *edit, QAbstractItemModel *model, const QModelIndex &index, int col, int role) const;

    HbMFieldWidget *m_owner;
    QPointer<HbFieldEditorCommandManager> m_commandManager;

private:
    QWidget *kept(QWidget *editor, const QModelIndex &cell) const;
    QWidget *createSlider(QWidget *parent, int row, const QString &text) const;

    int m_cellType = 0;
    int m_intMax = 10;
    int m_intMin = 0;
    double m_realMax = 10;
    double m_realMin = 0;
    bool m_bounded = false;
    mutable QHash<QPersistentModelIndex, QString> m_shown;
    mutable QHash<QWidget *, QPersistentModelIndex> m_editorCells; ///< of editors that are not destroyed
};

#endif
