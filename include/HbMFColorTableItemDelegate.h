// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFCOLORTABLEITEMDELEGATE_H
#define HBMFCOLORTABLEITEMDELEGATE_H

#include <HbMFieldTableItemDelegate.h>

#include <QColor>

/// Paints column 0 as a swatch; column c of the others is component c - 1.
class HARBORAPI_EXPORT HbMFColorTableItemDelegate : public HbMFieldTableItemDelegate
{
public:
    using HbMFieldTableItemDelegate::HbMFieldTableItemDelegate;
    ~HbMFColorTableItemDelegate() override;

    /// The colour of a row; channels are cut to 0 to 255, no number counts as 0.
    static QColor colorOf(const HbMFieldWidget &owner, int row);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// None for column 0.
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

protected:
    QString textToShow(const QModelIndex &index, int limit) const override;
};

#endif
