// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbNscPlugins.h>

HbNscPlugins::HbNscPlugins(HbGUIManagement *management) : management(management) { }

HbNscPlugins::~HbNscPlugins() = default;

void HbNscPlugins::setPath(const SbString &newPath)
{
    path = newPath;
}

SbString HbNscPlugins::getPath() const
{
    return path;
}
