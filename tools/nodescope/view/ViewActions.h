// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef VIEWACTIONS_H
#define VIEWACTIONS_H

class QMenu;
class QWidget;
class SceneView;

/// Puts everything that the view does by keys into @p menu. Keys without Ctrl work while the view has the focus, and
/// that which frames the selected node in @p tree, too: elsewhere they belong to what is typed there.
void addViewActions(QMenu &menu, SceneView &view, QWidget &tree);

#endif
