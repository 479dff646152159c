// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbGUITreeviewManagement.h>

HbGUITreeviewManagement::HbGUITreeviewManagement(QWidget *parent) : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("HbGUITreeviewManagement"));
}

HbGUITreeviewManagement::~HbGUITreeviewManagement() = default;
