// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbGUIManagement.h>

#include <HbFieldEditors.h>

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

SoNode *HbGUIManagement::getNode(QTreeWidgetItem *)
{
    return nullptr;
}

HbFieldEditors *HbGUIManagement::createFieldEditor(SoField *field, const FieldEditorFactory &create)
{
    HbFieldEditors *const editor = create(nullptr);
    if (editor) {
        editor->setField(field);
        editor->refresh();
    }
    return editor;
}

void HbGUIManagement::pluginsChanged() { }
