// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFColorTableItemDelegate.h>

#include "support/NumberText.h"

#include <HbMFieldWidget.h>

#include <QLineEdit>
#include <QPainter>

namespace
{
int channel(const QString &component)
{
    const double level = static_cast<double>(NumberText::toFloat(component)) * 255;
    return level > 0 ? static_cast<int>(qMin(level, 255.0)) : 0; // no number is not above 0
}
} // namespace

HbMFColorTableItemDelegate::~HbMFColorTableItemDelegate() = default;

QColor HbMFColorTableItemDelegate::colorOf(const HbMFieldWidget &owner, int row)
{
    return QColor(channel(owner.getFieldValue(row, 0)), channel(owner.getFieldValue(row, 1)),
                  channel(owner.getFieldValue(row, 2)));
}

QString HbMFColorTableItemDelegate::textToShow(const QModelIndex &index, int limit) const
{
    if (index.column() == 0)
        return colorOf(*m_owner, index.row()).name();
    return m_owner->getCellText(index.row(), index.column() - 1, limit);
}

void HbMFColorTableItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const
{
    HbMFieldTableItemDelegate::paint(painter, option, index);
    if (index.column() != 0)
        return;
    const QColor swatch(textToShow(index, 0));
    painter->save();
    painter->fillRect(option.rect, swatch);
    painter->setPen(qGray(swatch.rgb()) < 128 ? Qt::white : Qt::black);
    if (option.state & (QStyle::State_HasFocus | QStyle::State_Selected))
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

QWidget *HbMFColorTableItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                                  const QModelIndex &index) const
{
    return index.column() == 0 ? nullptr : HbMFieldTableItemDelegate::createEditor(parent, option, index);
}

void HbMFColorTableItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                              const QModelIndex &index) const
{
    if (auto *const edit = qobject_cast<QLineEdit *>(editor))
        commitText(edit, model, index, index.column() - 1, Qt::EditRole);
    else
        HbMFieldTableItemDelegate::setModelData(editor, model, index);
}
