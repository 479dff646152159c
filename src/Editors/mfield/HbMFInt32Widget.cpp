// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFInt32Widget.h>

#include "VectorTable.h"

#include <Inventor/fields/SoMFInt32.h>

HbMFInt32Widget::HbMFInt32Widget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbMFLineWidget(fieldType, commandManager, parent, name ? name : "HbMFInt32Widget", flags)
{
    initClass();
}

HbMFInt32Widget::HbMFInt32Widget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbMFInt32Widget(nullptr, commandManager, parent, name, flags)
{
}

HbMFInt32Widget::~HbMFInt32Widget() = default;

void HbMFInt32Widget::initClass()
{
    m_table->setCellType(HbMFieldTable::Int32Cell);
}

bool HbMFInt32Widget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFInt32>(field);
}
