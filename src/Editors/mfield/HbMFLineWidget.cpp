// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFLineWidget.h>

#include "TextColumn.h"
#include "VectorTable.h"

#include <typeinfo>

HbMFLineWidget::HbMFLineWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                               const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, commandManager, parent, name ? name : "HbMFLineWidget", flags)
{
    initClass();
}

HbMFLineWidget::HbMFLineWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                               Qt::WindowFlags flags)
    : HbMFLineWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFLineWidget::~HbMFLineWidget() = default;

void HbMFLineWidget::initClass()
{
    TextColumn::init(*m_table);
}

bool HbMFLineWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMField>(field);
}

QString HbMFLineWidget::getFieldValue(int row, int col) const
{
    return TextColumn::value(editedField(), row, col);
}

QString HbMFLineWidget::getCellText(int row, int col, int limit) const
{
    if (typeid(*this) != typeid(HbMFLineWidget))
        return getFieldValue(row, col); // which a derived class may have overridden
    return TextColumn::cellText(*this, textCache(), row, col, limit);
}

void HbMFLineWidget::set1Value(int row, int col, QString text)
{
    setSingleFieldValue(CoinText::toSbString(text), row, col);
}

SbString HbMFLineWidget::getSingleFieldValue(int row, int col) const
{
    return CoinText::toSbString(getFieldValue(row, col));
}

void HbMFLineWidget::setSingleFieldValue(SbString value, int row, int col)
{
    TextColumn::setValue(editedField(), value, row, col);
}

void HbMFLineWidget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
