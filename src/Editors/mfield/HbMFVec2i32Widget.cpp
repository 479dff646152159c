// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFVec2i32Widget.h>

#include "MFieldAccess.h"
#include "VectorTable.h"

#include <Inventor/fields/SoMFVec2i32.h>

namespace
{
constexpr int columns = 2;
} // namespace

HbMFVec2i32Widget::HbMFVec2i32Widget(const char *fieldType, HbFieldEditorCommandManager *commandManager,
                                     QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, commandManager, parent, name ? name : "HbMFVec2i32Widget", flags)
{
    initClass();
}

HbMFVec2i32Widget::HbMFVec2i32Widget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                     Qt::WindowFlags flags)
    : HbMFVec2i32Widget(nullptr, commandManager, parent, name, flags)
{
}

HbMFVec2i32Widget::~HbMFVec2i32Widget() = default;

void HbMFVec2i32Widget::initClass()
{
    VectorTable::init(*m_table, {QStringLiteral("x"), QStringLiteral("y")});
    m_table->setCellType(HbMFieldTable::Int32Cell);
}

bool HbMFVec2i32Widget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFVec2i32>(field);
}

QString HbMFVec2i32Widget::getFieldValue(int row, int col) const
{
    return VectorTable::text(*this, row, col, columns);
}

void HbMFVec2i32Widget::set1Value(int row, int col, QString text)
{
    setSingleFieldValue(text.toInt(), row, col);
}

int HbMFVec2i32Widget::getSingleFieldValue(int row, int col) const
{
    return VectorTable::component<int>(fieldAs<SoMFVec2i32>(), row, col, columns);
}

void HbMFVec2i32Widget::setSingleFieldValue(int value, int row, int col)
{
    VectorTable::setComponent(fieldAs<SoMFVec2i32>(), value, row, col, columns);
}

void HbMFVec2i32Widget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
