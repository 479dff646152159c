// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef NODESINFIELDS_H
#define NODESINFIELDS_H

#include <Inventor/SbName.h>

#include <vector>

class SoField;
class SoNode;

/// A node that a field of another node holds.
struct HeldNode {
    SoNode *node;
    SbName field;
};

/// The nodes in a field, without those that are missing.
std::vector<SoNode *> nodesIn(const SoField &field);

/// The nodes in a node's fields, but for those that are its children anyway, as a kit's parts are.
std::vector<HeldNode> heldNodes(const SoNode &node);

/// The nodes that a field leads to: the one that drives it or, where none does, those that it holds.
std::vector<SoNode *> nodesAt(const SoField &field);

#endif
