// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFRotationWidget.h>

#include "MFieldAccess.h"
#include "VectorTable.h"

#include <Inventor/SbRotation.h>
#include <Inventor/fields/SoMFRotation.h>

#include <algorithm>

namespace
{
constexpr int columns = 4;
} // namespace

HbMFRotationWidget::HbMFRotationWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager,
                                       QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, commandManager, parent, name ? name : "HbMFRotationWidget", flags)
{
    initClass();
}

HbMFRotationWidget::HbMFRotationWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                       Qt::WindowFlags flags)
    : HbMFRotationWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFRotationWidget::~HbMFRotationWidget() = default;

void HbMFRotationWidget::initClass()
{
    VectorTable::init(*m_table,
                      {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("radians")});
    m_table->setCellType(HbMFieldTable::RealCell);
}

bool HbMFRotationWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFRotation>(field);
}

QString HbMFRotationWidget::getFieldValue(int row, int col) const
{
    return VectorTable::text(*this, row, col, columns);
}

void HbMFRotationWidget::set1Value(int row, int col, QString text)
{
    setSingleFieldValue(NumberText::toFloat(text), row, col);
}

float HbMFRotationWidget::getSingleFieldValue(int row, int col) const
{
    const auto *const rotations = fieldAs<SoMFRotation>();
    const bool known = rotations && RowValues::contains(*rotations, row) && col >= 0 && col < columns;
    return known ? (*rotations)[row].getValue()[col] : 0;
}

void HbMFRotationWidget::setSingleFieldValue(float value, int row, int col)
{
    auto *const rotations = fieldAs<SoMFRotation>();
    if (!rotations || !RowValues::contains(*rotations, row) || col < 0 || col >= columns - 1)
        return; // the last one, which the header calls an angle, stays as it is, deliberately
    float components[columns];
    std::copy_n((*rotations)[row].getValue(), columns, components);
    components[col] = value;
    rotations->set1Value(row, SbRotation(components));
}

void HbMFRotationWidget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
