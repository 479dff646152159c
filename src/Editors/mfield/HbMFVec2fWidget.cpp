// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFVec2fWidget.h>

#include "MFieldAccess.h"
#include "VectorTable.h"

#include <Inventor/fields/SoMFVec2f.h>

namespace
{
constexpr int columns = 2;
} // namespace

HbMFVec2fWidget::HbMFVec2fWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, commandManager, parent, name ? name : "HbMFVec2fWidget", flags)
{
    initClass();
}

HbMFVec2fWidget::HbMFVec2fWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbMFVec2fWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFVec2fWidget::~HbMFVec2fWidget() = default;

void HbMFVec2fWidget::initClass()
{
    VectorTable::init(*m_table, {QStringLiteral("x"), QStringLiteral("y")});
    m_table->setCellType(HbMFieldTable::RealCell);
}

bool HbMFVec2fWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFVec2f>(field);
}

QString HbMFVec2fWidget::getFieldValue(int row, int col) const
{
    return VectorTable::text(*this, row, col, columns);
}

void HbMFVec2fWidget::set1Value(int row, int col, QString text)
{
    setSingleFieldValue(NumberText::toFloat(text), row, col);
}

float HbMFVec2fWidget::getSingleFieldValue(int row, int col) const
{
    return VectorTable::component<float>(fieldAs<SoMFVec2f>(), row, col, columns);
}

void HbMFVec2fWidget::setSingleFieldValue(float value, int row, int col)
{
    VectorTable::setComponent(fieldAs<SoMFVec2f>(), value, row, col, columns);
}

void HbMFVec2fWidget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
