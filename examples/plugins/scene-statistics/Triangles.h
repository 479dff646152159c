// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TRIANGLES_H
#define TRIANGLES_H

class HbGUIManagement;
class QTreeWidgetItem;

namespace Triangles
{
/// The triangles that are drawn for the node of a row and all below it, there where it stands in the scene.
int below(QTreeWidgetItem *row, HbGUIManagement &tool);
} // namespace Triangles

#endif
