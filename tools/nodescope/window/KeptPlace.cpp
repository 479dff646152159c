// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "KeptPlace.h"

#include "CoinRef.h"
#include "FileActions.h"
#include "SceneDocument.h"
#include "SceneTree.h"
#include "SceneView.h"

#include <Inventor/nodes/SoCamera.h>

namespace
{

/// The start of @p path that leads to a node.
ScenePath existingPart(SoNode *root, const ScenePath &path)
{
    ScenePath existing;
    SoNode *node = root;
    for (const int index : path) {
        const std::vector<SoNode *> children = childrenOf(node);
        if (index >= static_cast<int>(children.size()))
            break;
        node = children[static_cast<std::size_t>(index)];
        existing.append(index);
    }
    return existing;
}

} // namespace

KeptPlace::KeptPlace(FileActions *files, SceneTree *tree, SceneView *view, QObject *parent)
    : QObject(parent), m_tree(tree), m_view(view)
{
    connect(files, &FileActions::aboutToReload, this, &KeptPlace::keep);
    connect(files, &FileActions::reloaded, this, [this, files] { restore(files->document()->root()); });
}

void KeptPlace::keep()
{
    m_path = m_tree->pathOf(m_tree->currentItem());
    m_camera = m_view ? coinRef(static_cast<SoCamera *>(m_view->camera().node()->copy())) : nullptr;
}

void KeptPlace::restore(SoNode *root)
{
    m_tree->select(existingPart(root, m_path));
    if (!m_camera)
        return;
    SoCamera *const camera = m_view->camera().node();
    if (camera->getTypeId() == m_camera->getTypeId())
        camera->copyFieldValues(m_camera.get());
    m_camera.reset();
}
