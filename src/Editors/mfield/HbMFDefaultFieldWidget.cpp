// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFDefaultFieldWidget.h>

#include "MFieldAccess.h"
#include "VectorTable.h"
#include "support/CoinText.h"
#include "support/RowTextCache.h"

#include <Inventor/fields/SoMFString.h>

HbMFDefaultFieldWidget::HbMFDefaultFieldWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager,
                                               QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, commandManager, parent, name ? name : "HbMFDefaultFieldWidget", flags),
      m_texts(std::make_unique<RowTextCache>())
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
    m_table->setColumnCount(1);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    m_table->setNumRows(0);
}

bool HbMFDefaultFieldWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMField>(field);
}

QString HbMFDefaultFieldWidget::getFieldValue(int row, int col) const
{
    SoMField *const field = editedField();
    return field && col == 0 ? RowValues::text(*field, row) : QString();
}

QString HbMFDefaultFieldWidget::getCellText(int row, int col, int limit) const
{
    SoMField *const field = editedField();
    if (!field || col != 0)
        return {};
    if (field->isOfType(SoMFString::getClassTypeId()))
        return RowValues::startOfText(*field, row, limit);
    return m_texts->text(*field, row, [&] { return RowValues::text(*field, row); });
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
    SoMField *const field = editedField();
    if (field && col == 0 && RowValues::contains(*field, row))
        field->set1(row, value.getString());
}

void HbMFDefaultFieldWidget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
