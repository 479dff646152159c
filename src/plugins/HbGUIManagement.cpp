// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbGUIManagement.h>

HbGUIManagement::HbGUIManagement(QWidget *parent, Qt::WindowFlags flags) : QMainWindow(parent, flags) { }

HbGUIManagement::~HbGUIManagement() = default;

QWidget *HbGUIManagement::getStartupWidget()
{
    return nullptr;
}

QMenu *HbGUIManagement::getPluginsMenu()
{
    return nullptr;
}

QWidget *HbGUIManagement::getSceneWidget()
{
    return nullptr;
}

QWidget *HbGUIManagement::getEditorsWidget()
{
    return nullptr;
}
