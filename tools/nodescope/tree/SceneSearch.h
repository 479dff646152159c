// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENESEARCH_H
#define SCENESEARCH_H

#include "ScenePath.h"

#include <functional>
#include <unordered_map>

/**
 * The places of a scene whose nodes match, numbered from 0 in the tree's order from top to bottom.
 *
 * It goes through each branch once and keeps how many matches it holds, not where: a shared branch may stand in more
 * places than could be listed. The scene must stay as it is while this is asked.
 */
class SceneSearch
{
public:
    using Match = std::function<bool(const SoNode &)>;

    /// The root itself is no place.
    SceneSearch(SoNode *root, Match match);

    qint64 count() const;
    /// The place of this number, below count().
    ScenePath place(qint64 number) const;
    /// How many matches come before @p path.
    qint64 countBefore(const ScenePath &path) const;
    /// Whether the node at @p path matches.
    bool isMatch(const ScenePath &path) const;

private:
    struct Branch {
        qint64 count = 0; ///< of the matches in it, its own node included
        bool isOpen = true; ///< while the nodes below are counted
    };

    qint64 countOf(const SoNode *parent, const SoNode *child) const;

    SoNode *m_root;
    Match m_match;
    std::unordered_map<const SoNode *, Branch> m_branches; ///< by their topmost node; a node without children is none
    std::unordered_multimap<const SoNode *, const SoNode *> m_turns; ///< from a node to one that it stands below itself
};

#endif
