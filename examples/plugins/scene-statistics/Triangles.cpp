// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Triangles.h"

#include <HbGUIManagement.h>

#include <QTreeWidget>

#include <Inventor/SoPath.h>
#include <Inventor/actions/SoGetPrimitiveCountAction.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoGroup.h>

#include <memory>

namespace
{
template <class Object> std::shared_ptr<Object> referenced(Object *object)
{
    object->ref();
    return {object, [](Object *unused) { unused->unref(); }};
}

/// The way from @p root to the node of @p row; it ends early where the scene has changed since the tree was filled.
std::shared_ptr<SoPath> pathTo(QTreeWidgetItem *row, HbGUIManagement &tool, SoNode *root)
{
    const auto path = row->parent() ? pathTo(row->parent(), tool, root) : referenced(new SoPath(root));
    const SoChildList *const children = path->getTail()->getChildren();
    SoNode *const node = tool.getNode(row);
    const int index = children && node ? children->find(node) : -1;
    if (index >= 0)
        path->append(index);
    return path;
}
} // namespace

/// How a shape is cut into triangles depends on what stands before it: coordinates, complexity. So the whole way to it
/// is gone, from a root made for the rows that the tree shows at its top.
int Triangles::below(QTreeWidgetItem *row, HbGUIManagement &tool)
{
    const auto root = referenced(new SoGroup);
    for (int i = 0; i < row->treeWidget()->topLevelItemCount(); ++i)
        if (SoNode *const top = tool.getNode(row->treeWidget()->topLevelItem(i)))
            root->addChild(top);
    SoGetPrimitiveCountAction action;
    action.apply(pathTo(row, tool, root.get()).get());
    return action.getTriangleCount();
}
