// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFVec3fWidget.h>

#include "MFieldAccess.h"
#include "VectorTable.h"

#include <Inventor/fields/SoMFVec3f.h>

namespace
{
constexpr int columns = 3;
} // namespace

HbMFVec3fWidget::HbMFVec3fWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, commandManager, parent, name ? name : "HbMFVec3fWidget", flags)
{
    initClass();
}

HbMFVec3fWidget::HbMFVec3fWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbMFVec3fWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFVec3fWidget::~HbMFVec3fWidget() = default;

HbMFVec3fWidget::HbMFVec3fWidget(const char *fieldType, int tableKind, HbFieldEditorCommandManager *commandManager,
                                 QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, tableKind, commandManager, parent, name, flags)
{
    initClass();
}

void HbMFVec3fWidget::initClass()
{
    VectorTable::init(*m_table, {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")});
    m_table->setCellType(HbMFieldTable::RealCell);
}

bool HbMFVec3fWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFVec3f>(field);
}

QString HbMFVec3fWidget::getFieldValue(int row, int col) const
{
    return VectorTable::text(*this, row, col, columns);
}

void HbMFVec3fWidget::set1Value(int row, int col, QString text)
{
    setSingleFieldValue(NumberText::toFloat(text), row, col);
}

float HbMFVec3fWidget::getSingleFieldValue(int row, int col) const
{
    return VectorTable::component<float>(fieldAs<SoMFVec3f>(), row, col, columns);
}

void HbMFVec3fWidget::setSingleFieldValue(float value, int row, int col)
{
    VectorTable::setComponent(fieldAs<SoMFVec3f>(), value, row, col, columns);
}

void HbMFVec3fWidget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
