// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFPlaneWidget.h>

#include "MFieldAccess.h"
#include "VectorTable.h"

#include <Inventor/SbPlane.h>
#include <Inventor/fields/SoMFPlane.h>

namespace
{
constexpr int columns = 4;
constexpr int distanceColumn = 3;
} // namespace

HbMFPlaneWidget::HbMFPlaneWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, commandManager, parent, name ? name : "HbMFPlaneWidget", flags)
{
    initClass();
}

HbMFPlaneWidget::HbMFPlaneWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbMFPlaneWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFPlaneWidget::~HbMFPlaneWidget() = default;

void HbMFPlaneWidget::initClass()
{
    VectorTable::init(*m_table,
                      {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("distance")});
    m_table->setCellType(HbMFieldTable::RealCell);
}

bool HbMFPlaneWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFPlane>(field);
}

QString HbMFPlaneWidget::getFieldValue(int row, int col) const
{
    return VectorTable::text(*this, row, col, columns);
}

void HbMFPlaneWidget::set1Value(int row, int col, QString text)
{
    setSingleFieldValue(NumberText::toFloat(text), row, col);
}

float HbMFPlaneWidget::getSingleFieldValue(int row, int col) const
{
    const auto *const planes = fieldAs<SoMFPlane>();
    if (!planes || !RowValues::contains(*planes, row) || col < 0 || col >= columns)
        return 0;
    const SbPlane &plane = (*planes)[row];
    return col == distanceColumn ? plane.getDistanceFromOrigin() : plane.getNormal()[col];
}

void HbMFPlaneWidget::setSingleFieldValue(float value, int row, int col)
{
    auto *const planes = fieldAs<SoMFPlane>();
    if (!planes || !RowValues::contains(*planes, row) || col < 0 || col >= columns)
        return;
    const SbPlane &plane = (*planes)[row];
    SbVec3f normal = plane.getNormal();
    float distance = plane.getDistanceFromOrigin();
    (col == distanceColumn ? distance : normal[col]) = value;
    planes->set1Value(row, SbPlane(normal, distance));
}

void HbMFPlaneWidget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
