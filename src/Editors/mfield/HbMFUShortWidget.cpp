// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFUShortWidget.h>

#include "VectorTable.h"

#include <Inventor/fields/SoMFUShort.h>

HbMFUShortWidget::HbMFUShortWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                   const char *name, Qt::WindowFlags flags)
    : HbMFLineWidget(fieldType, commandManager, parent, name ? name : "HbMFUShortWidget", flags)
{
    initClass();
}

HbMFUShortWidget::HbMFUShortWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                   Qt::WindowFlags flags)
    : HbMFUShortWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFUShortWidget::~HbMFUShortWidget() = default;

void HbMFUShortWidget::initClass()
{
    m_table->setCellType(HbMFieldTable::UShortCell);
}

bool HbMFUShortWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFUShort>(field);
}
