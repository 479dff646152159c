// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "NodeHistory.h"

#include "SceneTree.h"

#include <Inventor/nodes/SoNode.h>

#include <QAction>
#include <QMenu>
#include <QScopedValueRollback>

namespace
{
constexpr std::size_t mostPlaces = 200;
}

NodeHistory::NodeHistory(SceneTree *tree)
    : QObject(tree), m_tree(tree), m_back(new QAction(tr("Go &Back"), this)),
      m_forward(new QAction(tr("Go F&orward"), this))
{
    m_back->setShortcut(Qt::ALT | Qt::Key_Left);
    m_forward->setShortcut(Qt::ALT | Qt::Key_Right);
    connect(m_back, &QAction::triggered, this, [this] { go(-1); });
    connect(m_forward, &QAction::triggered, this, [this] { go(1); });
    connect(tree, &SceneTree::nodeSelected, this, &NodeHistory::note);
    connect(tree, &SceneTree::newSceneGraph, this, &NodeHistory::forget);
    enable();
}

void NodeHistory::addTo(QMenu &menu)
{
    menu.addAction(m_back);
    menu.addAction(m_forward);
}

void NodeHistory::note()
{
    const SoNode *const node = m_tree->selectedNode();
    if (!node || m_isGoing)
        return;
    m_places.resize(static_cast<std::size_t>(m_here + 1));
    if (m_places.size() == mostPlaces)
        m_places.erase(m_places.begin());
    m_places.push_back({m_tree->pathOf(m_tree->currentItem()), node});
    m_here = static_cast<int>(m_places.size()) - 1;
    enable();
}

void NodeHistory::go(int direction)
{
    const int place = next(direction);
    if (place >= 0) {
        m_here = place;
        const QScopedValueRollback<bool> going(m_isGoing, true);
        const ScenePath path = m_places[static_cast<std::size_t>(place)].path; // who hears of it may open another scene
        m_tree->select(path);
    }
    enable();
}

/// -1 where there is none. Where nothing is selected any more, the last place is the one before.
int NodeHistory::next(int direction) const
{
    const bool isLeft = direction < 0 && !m_tree->selectedNode();
    for (int i = isLeft ? m_here : m_here + direction; i >= 0 && i < static_cast<int>(m_places.size());
         i += direction) {
        if (isThere(m_places[static_cast<std::size_t>(i)]))
            return i;
    }
    return -1;
}

bool NodeHistory::isThere(const Place &place) const
{
    const SoNode *node = m_tree->root();
    for (const int index : place.path) {
        const std::vector<SoNode *> children = node ? childrenOf(node) : std::vector<SoNode *>();
        if (index >= static_cast<int>(children.size()))
            return false;
        node = children[static_cast<std::size_t>(index)];
    }
    return node == place.node;
}

void NodeHistory::forget()
{
    m_places.clear();
    m_here = -1;
    enable();
}

/// By number only: which of them are still there is asked when one is wanted.
void NodeHistory::enable()
{
    m_back->setEnabled(m_here >= 0);
    m_forward->setEnabled(m_here + 1 < static_cast<int>(m_places.size()));
}
