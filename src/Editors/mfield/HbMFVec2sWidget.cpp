// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFVec2sWidget.h>

#include "MFieldAccess.h"
#include "VectorTable.h"

#include <Inventor/fields/SoMFVec2s.h>

namespace
{
constexpr int columns = 2;
} // namespace

HbMFVec2sWidget::HbMFVec2sWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, commandManager, parent, name ? name : "HbMFVec2sWidget", flags)
{
    initClass();
}

HbMFVec2sWidget::HbMFVec2sWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbMFVec2sWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFVec2sWidget::~HbMFVec2sWidget() = default;

void HbMFVec2sWidget::initClass()
{
    VectorTable::init(*m_table, {QStringLiteral("x"), QStringLiteral("y")});
}

bool HbMFVec2sWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFVec2s>(field);
}

QString HbMFVec2sWidget::getFieldValue(int row, int col) const
{
    return VectorTable::text(*this, row, col, columns);
}

void HbMFVec2sWidget::set1Value(int row, int col, QString text)
{
    setSingleFieldValue(text.toShort(), row, col);
}

short HbMFVec2sWidget::getSingleFieldValue(int row, int col) const
{
    return VectorTable::component<short>(fieldAs<SoMFVec2s>(), row, col, columns);
}

void HbMFVec2sWidget::setSingleFieldValue(short value, int row, int col)
{
    VectorTable::setComponent(fieldAs<SoMFVec2s>(), value, row, col, columns);
}

void HbMFVec2sWidget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
