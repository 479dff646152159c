// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneTree.h"

#include "CoinRef.h"
#include "IndexCheck.h"
#include "NodeOrigin.h"
#include "NodesInFields.h"
#include "SceneItem.h"
#include "SceneSearch.h"
#include "ShapeGuard.h"

#include <Inventor/nodes/SoNode.h>

#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>
#include <utility>

SceneTree::SceneTree(QWidget *parent) : HbGUITreeviewManagement(parent)
{
    setUpColumns();
    setUniformRowHeights(true); // the height of 100,000 rows is asked for once
    setAccessibleName(tr("Scene"));
    connect(this, &QTreeWidget::itemExpanded, this, &SceneTree::fill);
    connect(this, &QTreeWidget::itemExpanded, this, &SceneTree::widenTypes);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &SceneTree::widenTypes);
    connect(this, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem *item) { Q_EMIT nodeSelected(nodeOf(item)); });
    connect(this, &QTreeWidget::itemSelectionChanged, this, [this] {
        if (selectedItems().isEmpty())
            setCurrentItem(nullptr); // what is not shown as selected is not
    });
    m_follow.setSingleShot(true);
    connect(&m_follow, &QTimer::timeout, this, &SceneTree::follow);
    connect(&m_watch, &SceneWatch::structureChanged, this, [this] {
        if (!m_follow.isActive())
            m_follow.start();
    });
}

void SceneTree::setUpColumns()
{
    setColumnCount(SceneItem::ColumnCount);
    setHeaderLabels({tr("Type"), tr("Name")});
    setIndentation(2 * fontMetrics().averageCharWidth());
    header()->setStretchLastSection(false);
    header()->setResizeContentsPrecision(0); // what can be seen
    header()->setMinimumSectionSize(6 * fontMetrics().averageCharWidth());
    header()->setSectionResizeMode(SceneItem::Type, QHeaderView::Fixed);
    header()->setSectionResizeMode(SceneItem::Name, QHeaderView::Stretch);
}

/// The types never become narrower while a scene is shown: the names would jump to and fro.
void SceneTree::widenTypes()
{
    const int wanted = std::max(sizeHintForColumn(SceneItem::Type), header()->sectionSizeHint(SceneItem::Type));
    if (wanted > header()->sectionSize(SceneItem::Type))
        header()->resizeSection(SceneItem::Type, wanted);
}

void SceneTree::resizeEvent(QResizeEvent *event)
{
    HbGUITreeviewManagement::resizeEvent(event);
    widenTypes();
}

/// The keyboard alone selects nothing.
void SceneTree::focusInEvent(QFocusEvent *event)
{
    const QSignalBlocker quiet(this);
    const bool wasNothing = !currentItem();
    HbGUITreeviewManagement::focusInEvent(event);
    if (wasNothing)
        setCurrentItem(nullptr);
}

void SceneTree::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    QScrollBar *const sideways = horizontalScrollBar();
    const int before = sideways->value();
    HbGUITreeviewManagement::scrollTo(index, hint);
    widenTypes();
    sideways->setValue(before);
    const int start = visualRect(index.siblingAtColumn(SceneItem::Type)).left();
    const int end = start + sizeHintForIndex(index.siblingAtColumn(SceneItem::Type)).width();
    const int beyond = std::min(end - viewport()->width(), start);
    if (start < 0 || beyond > 0)
        sideways->setValue(before + (start < 0 ? start : beyond));
}

SceneTree::~SceneTree()
{
    NodeOrigin::setScene(nullptr);
    IndexCheck::setScene(nullptr);
}

void SceneTree::setScene(SoNode *root)
{
    setCurrentItem(nullptr);
    clear();
    m_places.clear();
    m_root = coinRef(root);
    m_watch.watch(root);
    header()->resizeSection(SceneItem::Type, header()->sectionSizeHint(SceneItem::Type));
    NodeOrigin::setScene(root);
    IndexCheck::setScene(root);
    if (root)
        matchChildren(invisibleRootItem(), childrenOf(root));
    if (topLevelItemCount() == 1)
        topLevelItem(0)->setExpanded(true);
    widenTypes();
    Q_EMIT newSceneGraph();
}

void SceneTree::select(const ScenePath &path)
{
    QTreeWidgetItem *item = path.isEmpty() ? nullptr : invisibleRootItem();
    for (const int index : path) {
        if (!item) // the scene has changed and the tree has yet to follow
            break;
        fill(item);
        item->setExpanded(true);
        item = item->child(index);
    }
    setCurrentItem(item);
    if (item && item == currentItem()) // who hears of it may select another, or open another scene
        scrollToItem(item);
}

bool SceneTree::selectNode(SoNode *node)
{
    ScenePath path;
    const std::vector<SoNode *> below = selectedNode() ? childrenOf(selectedNode()) : std::vector<SoNode *>();
    const auto held = std::find(below.begin(), below.end(), node);
    if (held != below.end()) {
        path = pathOf(currentItem());
        path.append(static_cast<int>(held - below.begin()));
    } else {
        path = SceneSearch(m_root.get(), [node](const SoNode &one) { return &one == node; }).place(0);
    }
    if (!path.isEmpty())
        select(path);
    return !path.isEmpty();
}

SoNode *SceneTree::selectedNode() const
{
    return nodeOf(currentItem());
}

SoNode *SceneTree::nodeOf(const QTreeWidgetItem *item)
{
    const auto *sceneItem = dynamic_cast<const SceneItem *>(item);
    return sceneItem ? sceneItem->node() : nullptr;
}

ScenePath SceneTree::pathOf(QTreeWidgetItem *item) const
{
    ScenePath path;
    for (; item; item = item->parent())
        path.prepend(item->parent() ? item->parent()->indexOfChild(item) : indexOfTopLevelItem(item));
    return path;
}

int SceneTree::placesOf(const SoNode *node) const
{
    if (m_places.empty() && m_root)
        countPlaces();
    const auto found = m_places.find(node);
    return found == m_places.end() ? 1 : found->second;
}

void SceneTree::countPlaces() const
{
    m_places[m_root.get()] = 1;
    std::vector<const SoNode *> open{m_root.get()};
    while (!open.empty()) {
        const std::vector<SoNode *> children = childrenOf(open.back());
        open.pop_back();
        for (const SoNode *const child : children) {
            const bool onlyHere = child->getRefCount() == 1; // its parent's; saves the look-up for most nodes
            if (onlyHere || ++m_places[child] == 1)
                open.push_back(child);
        }
    }
}

void SceneTree::showUndrawn()
{
    if (std::exchange(m_undrawnChanges, ShapeGuard::changes()) != ShapeGuard::changes())
        viewport()->update();
}

void SceneTree::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    if (QTreeWidgetItem *item = byMouse ? itemAt(event->pos()) : currentItem())
        Q_EMIT rightClicked(item);
}

void SceneTree::fill(QTreeWidgetItem *item)
{
    auto *sceneItem = dynamic_cast<SceneItem *>(item);
    if (!sceneItem || sceneItem->isFilled())
        return;
    sceneItem->setFilled();
    matchChildren(item, childrenOf(sceneItem->node()));
}

void SceneTree::follow()
{
    QElapsedTimer time;
    time.start();
    m_places.clear();
    NodeOrigin::setScene(m_root.get());
    IndexCheck::setScene(m_root.get());
    refreshBranch(invisibleRootItem(), m_root.get());
    viewport()->update();
    m_follow.setInterval(static_cast<int>(10 * time.elapsed())); // so that a moving scene leaves time for the user
}

void SceneTree::refreshBranch(QTreeWidgetItem *item, const SoNode *node)
{
    auto *sceneItem = dynamic_cast<SceneItem *>(item);
    if (sceneItem)
        sceneItem->updateIndicator();
    if (sceneItem && !sceneItem->isFilled())
        return;
    matchChildren(item, childrenOf(node));
    for (int i = 0; i < item->childCount(); ++i)
        refreshBranch(item->child(i), nodeOf(item->child(i)));
}

// What stands before and behind the changed stretch keeps its rows, and so stays open and selected.
void SceneTree::matchChildren(QTreeWidgetItem *item, const std::vector<SoNode *> &nodes)
{
    const int oldCount = item->childCount();
    const int newCount = static_cast<int>(nodes.size());
    const auto same = [&](int oldRow, int newRow) {
        return nodeOf(item->child(oldRow)) == nodes[static_cast<std::size_t>(newRow)];
    };
    int before = 0;
    while (before < std::min(oldCount, newCount) && same(before, before))
        ++before;
    int behind = 0;
    while (behind < std::min(oldCount, newCount) - before && same(oldCount - 1 - behind, newCount - 1 - behind))
        ++behind;

    removeChildren(item, before, oldCount - before - behind);
    const SoNode *const parent = nodeOf(item) ? nodeOf(item) : m_root.get();
    const std::vector<HeldNode> held = parent ? heldNodes(*parent) : std::vector<HeldNode>();
    const auto fieldAt = [&](int row) { // they come last
        const int index = row - newCount + static_cast<int>(held.size());
        return index < 0 ? QString() : QString::fromLatin1(held[static_cast<std::size_t>(index)].field.getString());
    };
    QList<QTreeWidgetItem *> fresh;
    for (int row = before; row < newCount - behind; ++row)
        fresh.append(
            new SceneItem(nodes[static_cast<std::size_t>(row)], fieldAt(row))); // owned by the tree from here on
    item->insertChildren(before, fresh);
}

void SceneTree::removeChildren(QTreeWidgetItem *item, int first, int count)
{
    for (QTreeWidgetItem *selected = currentItem(); selected; selected = selected->parent()) {
        QTreeWidgetItem *parent = selected->parent() ? selected->parent() : invisibleRootItem();
        const int row = parent->indexOfChild(selected);
        if (parent == item && row >= first && row < first + count)
            setCurrentItem(selected->parent());
    }
    if (count == item->childCount()) {
        qDeleteAll(item->takeChildren());
        return;
    }
    while (count-- > 0)
        delete item->takeChild(first);
}
