// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbFieldEditorCommandManager.h>

HbFieldEditorCommandManager::HbFieldEditorCommandManager(QObject *parent) : QObject(parent) { }

HbFieldEditorCommandManager::~HbFieldEditorCommandManager() = default;
