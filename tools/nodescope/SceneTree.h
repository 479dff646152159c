// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENETREE_H
#define SCENETREE_H

#include "ScenePath.h"
#include "SceneWatch.h"

#include <HbGUITreeviewManagement.h>

#include <QTimer>

#include <unordered_map>

/**
 * The nodes of a scene by type and name.
 *
 * A branch is filled when it is opened, so that a large scene shows at once. The tree follows the scene:
 * nodes that code adds or removes appear and vanish. If the selected node vanishes, its nearest ancestor
 * that is left is selected, or nothing.
 */
class SceneTree : public HbGUITreeviewManagement
{
    Q_OBJECT

public:
    explicit SceneTree(QWidget *parent = nullptr);
    ~SceneTree() override;

    /// Shows what is below @p root; null shows nothing.
    void setScene(SoNode *root);

    /// Opens the branches on the way and selects the node there; an empty path selects nothing.
    void select(const ScenePath &path);
    /// Selects a node wherever it stands, first below the selected one; false if it does not stand in the scene.
    bool selectNode(SoNode *node);
    SoNode *root() const { return m_root.get(); }
    /// Null where nothing is selected.
    SoNode *selectedNode() const;

    static SoNode *nodeOf(const QTreeWidgetItem *item);
    ScenePath pathOf(QTreeWidgetItem *item) const;
    /// In how many places of the scene a node stands.
    int placesOf(const SoNode *node) const;
    /// Marks the shapes that the last picture has left out.
    void showUndrawn();

    /// Sideways as far as to the text.
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

Q_SIGNALS:
    /// Null: nothing is selected any more.
    void nodeSelected(SoNode *node);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setUpColumns();
    void widenTypes();
    void countPlaces() const;
    void fill(QTreeWidgetItem *item);
    void follow();
    void refreshBranch(QTreeWidgetItem *item, const SoNode *node);
    void matchChildren(QTreeWidgetItem *item, const std::vector<SoNode *> &nodes);
    void removeChildren(QTreeWidgetItem *item, int first, int count);

    std::shared_ptr<SoNode> m_root;
    SceneWatch m_watch;
    QTimer m_follow; ///< pauses ten times as long as the tree took to follow the scene
    mutable std::unordered_map<const SoNode *, int> m_places; ///< counted when first asked for; 1 where missing
    int m_undrawnChanges = 0; ///< of what is marked
};

#endif
