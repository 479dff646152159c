// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CONTAINMENT_H
#define CONTAINMENT_H

#include <unordered_set>
#include <vector>

class SoField;
class SoFieldContainer;

/// What a walk through a scene has yet to go to. Each node is given once, wherever it stands, so that the walk ends
/// even where a node contains itself.
template <class Node> class OpenNodes
{
public:
    void add(Node *node)
    {
        if (node && m_seen.insert(node).second)
            m_open.push_back(node);
    }
    /// Null at the end.
    Node *take()
    {
        if (m_open.empty())
            return nullptr;
        Node *const node = m_open.back();
        m_open.pop_back();
        return node;
    }

private:
    std::vector<Node *> m_open;
    std::unordered_set<const Node *> m_seen;
};

/// The nodes and engines in a field, and the nodes where the paths in it begin; without those that are missing.
std::vector<SoFieldContainer *> objectsIn(const SoField &field);

/// Whether a node stands below itself, as a child or in a field: such a scene can be read, but hardly drawn or saved.
/// A script, or a node of an unknown class, may hold any node in its fields: they only name what it works on.
bool containsItself(SoFieldContainer *root);

/// Whether what a field holds leads back to the field's own node, or into any other circle.
bool leadsInCircles(const SoField &field);

#endif
