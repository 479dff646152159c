// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFShortWidget.h>

#include "VectorTable.h"

#include <Inventor/fields/SoMFShort.h>

HbMFShortWidget::HbMFShortWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbMFLineWidget(fieldType, commandManager, parent, name ? name : "HbMFShortWidget", flags)
{
    initClass();
}

HbMFShortWidget::HbMFShortWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbMFShortWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFShortWidget::~HbMFShortWidget() = default;

void HbMFShortWidget::initClass()
{
    m_table->setCellType(HbMFieldTable::ShortCell);
}

bool HbMFShortWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFShort>(field);
}
