// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFFloatWidget.h>

#include "VectorTable.h"

#include <HbRangeComponent.h>

#include <Inventor/fields/SoMFFloat.h>

HbMFFloatWidget::HbMFFloatWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbMFLineWidget(fieldType, commandManager, parent, name ? name : "HbMFFloatWidget", flags)
{
    initClass();
}

HbMFFloatWidget::HbMFFloatWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbMFFloatWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFFloatWidget::~HbMFFloatWidget() = default;

HbMFFloatWidget::HbMFFloatWidget(const char *fieldType, const HbRangeComponent &range,
                                 HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbMFFloatWidget(fieldType, commandManager, parent, name, flags)
{
    m_table->setDoubleEditorRange(static_cast<double>(range.fMin), static_cast<double>(range.fMax));
    m_table->setBoundedValue(range.boundFixed);
}

HbMFFloatWidget::HbMFFloatWidget(const HbRangeComponent &range, HbFieldEditorCommandManager *commandManager,
                                 QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbMFFloatWidget(nullptr, range, commandManager, parent, name, flags)
{
}

void HbMFFloatWidget::initClass()
{
    m_table->setCellType(HbMFieldTable::RealCell);
}

bool HbMFFloatWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFFloat>(field);
}
