// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFStringWidget.h>

#include "MFieldAccess.h"
#include "VectorTable.h"
#include "coin/FieldReader.h"
#include "support/CoinText.h"

#include <Inventor/fields/SoMFString.h>

#include <typeinfo>

HbMFStringWidget::HbMFStringWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                   const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, commandManager, parent, name ? name : "HbMFStringWidget", flags)
{
    initClass();
}

HbMFStringWidget::HbMFStringWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                   Qt::WindowFlags flags)
    : HbMFStringWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFStringWidget::~HbMFStringWidget() = default;

void HbMFStringWidget::initClass()
{
    m_table->setColumnCount(1);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    m_table->setNumRows(0);
}

bool HbMFStringWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFString>(field);
}

QString HbMFStringWidget::getFieldValue(int row, int col) const
{
    SoMField *const field = editedField();
    if (!field || col != 0)
        return {};
    const auto *const strings = fieldAs<SoMFString>();
    if (!strings || !RowValues::contains(*strings, row))
        return RowValues::text(*field, row);
    return CoinText::toQString((*strings)[row]);
}

QString HbMFStringWidget::getCellText(int row, int col, int limit) const
{
    const bool isDerived = typeid(*this) != typeid(HbMFStringWidget); // it may have overridden getFieldValue()
    const auto *const strings = fieldAs<SoMFString>();
    return !isDerived && strings && col == 0 && RowValues::isLongString(*strings, row)
        ? RowValues::startOfString(*strings, row, limit)
        : getFieldValue(row, col);
}

void HbMFStringWidget::set1Value(int row, int col, QString text)
{
    setSingleFieldValue(CoinText::toSbString(text), row, col);
}

SbString HbMFStringWidget::getSingleFieldValue(int row, int col) const
{
    return CoinText::toSbString(getFieldValue(row, col));
}

void HbMFStringWidget::setSingleFieldValue(SbString value, int row, int col)
{
    SoMField *const field = editedField();
    if (!field || col != 0 || !RowValues::contains(*field, row))
        return;
    if (auto *const strings = fieldAs<SoMFString>())
        strings->set1Value(row, value); // not parsed: quotes are part of it
    else
        FieldReader::set1(*field, row, value.getString()); // a derived class may take other fields
}

void HbMFStringWidget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
