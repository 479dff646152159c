// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFVec4fWidget.h>

#include "MFieldAccess.h"
#include "VectorTable.h"

#include <Inventor/fields/SoMFVec4f.h>

namespace
{
constexpr int columns = 4;
} // namespace

HbMFVec4fWidget::HbMFVec4fWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, commandManager, parent, name ? name : "HbMFVec4fWidget", flags)
{
    initClass();
}

HbMFVec4fWidget::HbMFVec4fWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbMFVec4fWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFVec4fWidget::~HbMFVec4fWidget() = default;

void HbMFVec4fWidget::initClass()
{
    VectorTable::init(*m_table, {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("w")});
    m_table->setCellType(HbMFieldTable::RealCell);
}

bool HbMFVec4fWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFVec4f>(field);
}

QString HbMFVec4fWidget::getFieldValue(int row, int col) const
{
    return VectorTable::text(*this, row, col, columns);
}

void HbMFVec4fWidget::set1Value(int row, int col, QString text)
{
    setSingleFieldValue(NumberText::toFloat(text), row, col);
}

float HbMFVec4fWidget::getSingleFieldValue(int row, int col) const
{
    return VectorTable::component<float>(fieldAs<SoMFVec4f>(), row, col, columns);
}

void HbMFVec4fWidget::setSingleFieldValue(float value, int row, int col)
{
    VectorTable::setComponent(fieldAs<SoMFVec4f>(), value, row, col, columns);
}

void HbMFVec4fWidget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
