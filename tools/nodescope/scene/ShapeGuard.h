// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SHAPEGUARD_H
#define SHAPEGUARD_H

#include <QString>

class SoAction;
class SoNode;
class SoShape;

/// Tells where Coin would end the program, as a shape's indices point beyond what there is: those are not drawn.
namespace ShapeGuard
{
/// Makes the shapes that are read from files, and their copies, look before they are drawn, picked or measured. Those
/// that a plug-in's C++ code makes itself do not.
void guardShapes();

/// Whether the node is a shape of a kind that looks.
bool isGuarded(const SoNode &node);
/// Whether an action can go through the shape where it stands now.
bool isSafe(SoAction &action, SoShape &shape);

/// Why the node is not drawn, as the end of a sentence; empty for one that is. As the last picture has found it.
QString obstacle(const SoNode *node);
/// What was found about the nodes of a scene that is shown no longer.
void forget();
/// Changes with what obstacle() tells.
int changes();
} // namespace ShapeGuard

#endif
