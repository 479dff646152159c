// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbGUIComponents.h>

#include <HbGUIManagement.h>

HbGUIComponents::HbGUIComponents(HbGUIManagement *management) : HbNscPlugins(management), QObject(management) { }

HbGUIComponents::~HbGUIComponents() = default;
