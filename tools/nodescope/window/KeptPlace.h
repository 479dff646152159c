// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef KEPTPLACE_H
#define KEPTPLACE_H

#include "ScenePath.h"

#include <QObject>

#include <memory>

class FileActions;
class SceneTree;
class SceneView;
class SoCamera;

/// Keeps the selected node's place and the view's camera while the same file is read again.
class KeptPlace : public QObject
{
    Q_OBJECT

public:
    /// @p view may be null.
    KeptPlace(FileActions *files, SceneTree *tree, SceneView *view, QObject *parent);

private:
    void keep();
    void restore(SoNode *root);

    SceneTree *m_tree;
    SceneView *m_view;
    ScenePath m_path;
    std::shared_ptr<SoCamera> m_camera;
};

#endif
