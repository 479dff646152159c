// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFDefaultFieldWidget.h>

#include "TextColumn.h"
#include "VectorTable.h"

#include <typeinfo>

HbMFDefaultFieldWidget::HbMFDefaultFieldWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager,
                                               QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, commandManager, parent, name ? name : "HbMFDefaultFieldWidget", flags)
{
    initClass();
}

HbMFDefaultFieldWidget::HbMFDefaultFieldWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                               const char *name, Qt::WindowFlags flags)
    : HbMFDefaultFieldWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFDefaultFieldWidget::~HbMFDefaultFieldWidget() = default;

void HbMFDefaultFieldWidget::initClass()
{
    TextColumn::init(*m_table);
}

bool HbMFDefaultFieldWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMField>(field);
}

QString HbMFDefaultFieldWidget::getFieldValue(int row, int col) const
{
    return TextColumn::value(editedField(), row, col);
}

QString HbMFDefaultFieldWidget::getCellText(int row, int col, int limit) const
{
    if (typeid(*this) != typeid(HbMFDefaultFieldWidget))
        return getFieldValue(row, col); // which a derived class may have overridden
    return TextColumn::cellText(*this, textCache(), row, col, limit);
}

void HbMFDefaultFieldWidget::set1Value(int row, int col, QString text)
{
    setSingleFieldValue(CoinText::toSbString(text), row, col);
}

SbString HbMFDefaultFieldWidget::getSingleFieldValue(int row, int col) const
{
    return CoinText::toSbString(getFieldValue(row, col));
}

void HbMFDefaultFieldWidget::setSingleFieldValue(SbString value, int row, int col)
{
    TextColumn::setValue(editedField(), value, row, col);
}

void HbMFDefaultFieldWidget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
