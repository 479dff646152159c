// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "CoinMessages.h"

#include <HbGUIManagement.h>

#include <memory>
#include <optional>

class FieldPanel;
class FileActions;
class HbGUIManager;
class MessageBar;
class NodeEditor;
class PluginsDialog;
class SceneDocument;
class SceneTree;
class SceneView;
class QSplitter;
class QStackedWidget;
class SearchLine;
class ViewRoom;
class QTreeWidgetItem;

/// The tool's window: the scene's tree, its picture, the editors of the selected node, messages, and plug-ins.
class MainWindow : public HbGUIManagement
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /// Opens a scene in place of the one that is open. What went wrong stands in the message bar.
    bool open(const QString &fileName);
    /// Selects the node at a path as in "Lighthouse/0/Lamp".
    bool select(const QString &path, QString *problem);
    /// Takes size and places from the last time and keeps them for the next.
    void rememberGeometry();
    /// Loads the plug-ins that were chosen the last time and keeps the choice for the next.
    void rememberPlugins();
    /// Lists the scenes of earlier runs as recent, and keeps those of this one.
    void rememberFiles();

    QWidget *getSceneWidget() override;
    QWidget *getEditorsWidget() override;
    QMenu *getPluginsMenu() override;
    SoNode *getNode(QTreeWidgetItem *item) override;
    HbFieldEditors *createFieldEditor(SoField *field, const FieldEditorFactory &create) override;
    void pluginsChanged() override;

    SceneTree *tree() const { return m_tree; }
    FieldPanel *panel() const { return m_panel; }
    /// Null where this machine draws no OpenGL.
    SceneView *view() const { return m_view; }
    SceneDocument *document() const { return m_document; }
    QStringList messages() const;

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void createCentre();
    void createDocks();
    void createMenus();
    void createFileMenu();
    void createEditMenu();
    void createViewMenu();
    void createHelpMenu();

    void listDocks();
    void finishEditing();
    void showSelection();
    void showDocument();
    void showTitle();
    void goTo(SoNode *node);
    void showContextMenu(QTreeWidgetItem *item);
    void about();

    SceneDocument *m_document;
    SceneTree *m_tree;
    SearchLine *m_search;
    QSplitter *m_editors; ///< of the selected node: its own, over those of its fields
    NodeEditor *m_nodeEditor;
    FieldPanel *m_panel;
    QStackedWidget *m_centre = nullptr; ///< the start screen, or the view
    SceneView *m_view = nullptr;
    MessageBar *m_messages;
    ViewRoom *m_room;
    FileActions *m_files;
    QMenu *m_viewMenu = nullptr;
    QMenu *m_toolsMenu = nullptr;
    std::optional<CoinMessages> m_coin; ///< what Coin says between reading and writing, say while drawing
    std::unique_ptr<HbGUIManager> m_plugins;
    PluginsDialog *m_pluginsDialog;
    bool m_remembersGeometry = false;
};

#endif
