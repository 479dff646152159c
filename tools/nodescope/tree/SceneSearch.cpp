// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneSearch.h"

#include <algorithm>
#include <limits>

namespace
{
struct Step {
    SoNode *node;
    std::vector<SoNode *> children;
    qint64 count; ///< so far
    std::size_t next = 0;
};

qint64 sum(qint64 first, qint64 second)
{
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    return first > most - second ? most : first + second;
}
} // namespace

SceneSearch::SceneSearch(SoNode *root, Match match) : m_root(root), m_match(std::move(match))
{
    if (!root)
        return;
    m_branches.emplace(root, Branch());
    std::vector<Step> way{{root, childrenOf(root), 0}};
    while (!way.empty()) {
        Step &step = way.back();
        if (step.next == step.children.size()) {
            const qint64 count = step.count;
            m_branches[step.node] = {count, false};
            way.pop_back();
            if (!way.empty())
                way.back().count = sum(way.back().count, count);
            continue;
        }
        SoNode *const child = step.children[step.next++];
        std::vector<SoNode *> below = childrenOf(child);
        if (below.empty()) {
            step.count += m_match(*child);
            continue;
        }
        const auto [known, isNew] = m_branches.emplace(child, Branch());
        if (isNew)
            way.push_back({child, std::move(below), m_match(*child)});
        else if (known->second.isOpen)
            m_turns.emplace(step.node, child); // the way would never end
        else
            step.count = sum(step.count, known->second.count);
    }
}

qint64 SceneSearch::count() const
{
    const auto root = m_branches.find(m_root);
    return root == m_branches.end() ? 0 : root->second.count;
}

qint64 SceneSearch::countOf(const SoNode *parent, const SoNode *child) const
{
    if (!hasChildren(child))
        return m_match(*child);
    const auto turns = m_turns.equal_range(parent);
    const bool isTurn = std::any_of(turns.first, turns.second, [=](const auto &turn) { return turn.second == child; });
    const auto branch = m_branches.find(child);
    return isTurn || branch == m_branches.end() ? 0 : branch->second.count;
}

ScenePath SceneSearch::place(qint64 number) const
{
    ScenePath path;
    const SoNode *parent = m_root;
    bool isThere = number < 0 || number >= count();
    while (!isThere) {
        const std::vector<SoNode *> children = childrenOf(parent);
        std::size_t index = 0;
        for (; index < children.size(); ++index) {
            const qint64 inside = countOf(parent, children[index]);
            if (number < inside)
                break;
            number -= inside;
        }
        if (index == children.size()) // the scene has changed
            return {};
        path.append(static_cast<int>(index));
        parent = children[index];
        const bool isMatch = m_match(*parent);
        isThere = isMatch && number == 0;
        number -= isMatch;
    }
    return path;
}

qint64 SceneSearch::countBefore(const ScenePath &path) const
{
    qint64 before = 0;
    const SoNode *parent = m_root;
    for (const int index : path) {
        before += parent != m_root && m_match(*parent);
        const std::vector<SoNode *> children = childrenOf(parent);
        for (int i = 0; i < std::min(index, static_cast<int>(children.size())); ++i)
            before = sum(before, countOf(parent, children[static_cast<std::size_t>(i)]));
        if (index >= static_cast<int>(children.size()))
            break;
        parent = children[static_cast<std::size_t>(index)];
    }
    return before;
}

bool SceneSearch::isMatch(const ScenePath &path) const
{
    const SoNode *node = path.isEmpty() ? nullptr : m_root;
    for (const int index : path) {
        const std::vector<SoNode *> children = childrenOf(node);
        if (index >= static_cast<int>(children.size()))
            return false;
        node = children[static_cast<std::size_t>(index)];
    }
    return node && m_match(*node);
}
