// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFUInt32Widget.h>

#include "VectorTable.h"

#include <Inventor/fields/SoMFUInt32.h>

HbMFUInt32Widget::HbMFUInt32Widget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                   const char *name, Qt::WindowFlags flags)
    : HbMFLineWidget(fieldType, commandManager, parent, name ? name : "HbMFUInt32Widget", flags)
{
    initClass();
}

HbMFUInt32Widget::HbMFUInt32Widget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                   Qt::WindowFlags flags)
    : HbMFUInt32Widget(nullptr, commandManager, parent, name, flags)
{
}

HbMFUInt32Widget::~HbMFUInt32Widget() = default;

void HbMFUInt32Widget::initClass()
{
    m_table->setCellType(HbMFieldTable::UInt32Cell);
}

bool HbMFUInt32Widget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFUInt32>(field);
}
