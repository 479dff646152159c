// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbFieldEditors.h>

#include "support/FieldWatch.h"

#include <HbMFieldWidget.h>
#include <HbSFieldWidget.h>

HbFieldEditors::HbFieldEditors(QWidget *parent, Qt::WindowFlags flags) : HbEditors(parent, flags) { }

HbFieldEditors::~HbFieldEditors() = default;

void HbFieldEditors::updateEditor()
{
    setField(field);
    refresh();
}

bool HbFieldEditors::hasLostField() const
{
    if (const auto *const single = dynamic_cast<const HbSFieldWidget *>(this))
        return single->m_field->isLost();
    const auto *const many = dynamic_cast<const HbMFieldWidget *>(this);
    return many && many->m_field->isLost();
}
