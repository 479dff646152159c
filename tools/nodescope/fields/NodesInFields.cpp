// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "NodesInFields.h"

#include <Inventor/fields/SoFieldData.h>
#include <Inventor/fields/SoMFNode.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodekits/SoBaseKit.h>
#include <Inventor/nodes/SoNode.h>

#include <algorithm>
#include <unordered_set>

namespace
{
void dropChildren(const SoNode &node, std::vector<HeldNode> *held)
{
    const SoChildList *const list = node.getChildren();
    if (held->empty() || !list)
        return;
    std::unordered_set<const SoNode *> children;
    for (int i = 0; i < list->getLength(); ++i)
        children.insert((*list)[i]);
    const auto isChild = [&](const HeldNode &one) { return children.count(one.node) > 0; };
    held->erase(std::remove_if(held->begin(), held->end(), isChild), held->end());
}
} // namespace

std::vector<SoNode *> nodesIn(const SoField &field)
{
    std::vector<SoNode *> nodes;
    if (field.isOfType(SoSFNode::getClassTypeId())) {
        nodes.push_back(static_cast<const SoSFNode &>(field).getValue());
    } else if (field.isOfType(SoMFNode::getClassTypeId())) {
        const auto &many = static_cast<const SoMFNode &>(field);
        for (int i = 0; i < many.getNum(); ++i)
            nodes.push_back(many[i]);
    }
    nodes.erase(std::remove(nodes.begin(), nodes.end(), nullptr), nodes.end());
    return nodes;
}

/// Asked of every node of a scene, so a class without such fields costs next to nothing.
std::vector<HeldNode> heldNodes(const SoNode &node)
{
    std::vector<HeldNode> held;
    const SoFieldData *const fields = node.getFieldData();
    const int count = fields ? fields->getNumFields() : 0;
    for (int i = 0; i < count; ++i) {
        const SoField &field = *fields->getField(&node, i);
        const SoType type = field.getTypeId();
        if (type != SoSFNode::getClassTypeId() && type != SoMFNode::getClassTypeId())
            continue;
        for (SoNode *const one : nodesIn(field))
            held.push_back({one, fields->getFieldName(i)});
    }
    if (!held.empty() && node.isOfType(SoBaseKit::getClassTypeId()))
        return {}; // its parts stand below each other
    dropChildren(node, &held);
    return held;
}

std::vector<SoNode *> nodesAt(const SoField &field)
{
    SoField *master = nullptr;
    if (!field.isConnectedFromField() || !field.getConnectedField(master) || !master->getContainer()
        || !master->getContainer()->isOfType(SoNode::getClassTypeId()))
        return nodesIn(field);
    return {static_cast<SoNode *>(master->getContainer())};
}
