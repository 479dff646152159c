// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBGUIMANAGEMENT_H
#define HBGUIMANAGEMENT_H

#include <harborapi_export.h>

#include <QMainWindow>

#include <functional>

class HbFieldEditorCommandManager;
class HbFieldEditors;
class QMenu;
class QTreeWidgetItem;
class SoField;
class SoNode;

/**
 * The tool's main window as the plug-in framework sees it.
 *
 * A tool derives its window from this class and overrides the hooks that it can serve. Every hook may
 * return null, which is also the default: the framework then leaves out what it would have done there.
 * The widgets that hooks return stay the tool's own.
 */
class HARBORAPI_EXPORT HbGUIManagement : public QMainWindow
{
public:
    explicit HbGUIManagement(QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    ~HbGUIManagement() override;

    /// The widget shown while the tool starts, say a splash screen; it is hidden (setVisible(false))
    /// before plug-ins are loaded, so that it does not cover what they report.
    virtual QWidget *getStartupWidget();

    /// The menu that receives the entry "Plug-ins".
    virtual QMenu *getPluginsMenu();

    /// The widget that shows the scene's structure; repainted after a plug-in was removed.
    virtual QWidget *getSceneWidget();

    /// The widget that shows the editors of the selection; repainted after a plug-in was removed.
    virtual QWidget *getEditorsWidget();

    /// The node that a row of the scene's tree stands for, for plug-ins that follow the tree.
    virtual SoNode *getNode(QTreeWidgetItem *item);

    /// Makes a field editor that is given this command manager, which may be null.
    using FieldEditorFactory = std::function<HbFieldEditors *(HbFieldEditorCommandManager *)>;

    /**
     * Makes an editor of @p field for a plug-in, by @p create, and returns it; it belongs to the parent it was created
     * with. Null where @p create makes none.
     *
     * A tool overrides this to supply a command manager of its own, so that edits in a plug-in can be undone there,
     * and to keep the editor up to date. By default the editor writes the field itself and is refreshed once.
     */
    virtual HbFieldEditors *createFieldEditor(SoField *field, const FieldEditorFactory &create);

    /// The set of plug-ins has changed: the editor for the selected node may be another one now.
    virtual void pluginsChanged();
};

#endif
