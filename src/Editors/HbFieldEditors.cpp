// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbFieldEditors.h>

HbFieldEditors::HbFieldEditors(QWidget *parent, Qt::WindowFlags flags) : HbEditors(parent, flags) { }

HbFieldEditors::~HbFieldEditors() = default;

void HbFieldEditors::updateEditor()
{
    setField(field);
    refresh();
}
