// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFColorWidget.h>

#include "MFieldAccess.h"
#include "VectorTable.h"
#include "support/TranslatedTexts.h"

#include <Inventor/fields/SoMFColor.h>

namespace
{
constexpr int components = 3;
} // namespace

HbMFColorWidget::HbMFColorWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbMFVec3fWidget(fieldType, m_colorTableFlag, commandManager, parent, name ? name : "HbMFColorWidget", flags)
{
    initClass();
}

HbMFColorWidget::HbMFColorWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbMFColorWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFColorWidget::~HbMFColorWidget() = default;

void HbMFColorWidget::initClass()
{
    const auto labels = [] {
        return QStringList{HbMFieldWidget::tr("Color"), QStringLiteral("R"), QStringLiteral("G"), QStringLiteral("B")};
    };
    VectorTable::init(*m_table, labels());
    (new TranslatedTexts(this))->call([this, labels] { m_table->setHorizontalHeaderLabels(labels()); });
}

bool HbMFColorWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFColor>(field);
}

float HbMFColorWidget::getSingleFieldValue(int row, int col) const
{
    return VectorTable::component<float>(fieldAs<SoMFColor>(), row, col, components);
}

void HbMFColorWidget::setSingleFieldValue(float value, int row, int col)
{
    if (value >= 0 && value <= 1) // which no NaN is
        VectorTable::setComponent(fieldAs<SoMFColor>(), value, row, col, components);
}

void HbMFColorWidget::setValue(int row, const void *data)
{
    auto *const colors = fieldAs<SoMFColor>();
    if (colors && data && RowValues::contains(*colors, row))
        colors->set1Value(row, SbColor(static_cast<const float *>(data)));
}

void HbMFColorWidget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
