// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEPATH_H
#define SCENEPATH_H

#include <QCoreApplication>
#include <QString>
#include <QVector>

#include <vector>

class SoNode;

/// A way through a scene: which child to take at each level, from the root on.
using ScenePath = QVector<int>;

/// What stands below any kind of node: a group's children, a kit's parts, the nodes in a VRML node's fields; and behind
/// these the nodes that its fields hold otherwise, which no path of Coin's leads to.
std::vector<SoNode *> childrenOf(const SoNode *node);
/// Without the nodes that only fields hold.
std::vector<SoNode *> ownChildrenOf(const SoNode *node);
bool hasChildren(const SoNode *node);

/**
 * The path that @p text spells: names and child indices, separated by '/', as in "Lighthouse/0/Lamp".
 *
 * An index counts from 0. A name means the nearest node of that name below the place reached so far.
 * An empty path and a reason in @p problem are returned where a step leads nowhere.
 */
ScenePath findPath(SoNode *root, const QString &text, QString *problem);

/// The text that findPath() takes for @p path.
QString pathText(SoNode *root, const ScenePath &path);

#endif
