// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ScenePath.h"

#include "NodesInFields.h"

#include <QCoreApplication>

#include <Inventor/SbName.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoNode.h>

#include <algorithm>
#include <deque>
#include <unordered_set>
#include <utility>

namespace
{

QString nameOf(const SoNode *node)
{
    return QString::fromLatin1(node->getName().getString());
}

struct Place {
    SoNode *node;
    ScenePath path;
};

bool descendByIndex(Place *place, int index)
{
    const std::vector<SoNode *> children = childrenOf(place->node);
    if (index < 0 || index >= static_cast<int>(children.size()))
        return false;
    place->node = children[static_cast<std::size_t>(index)];
    place->path.append(index);
    return true;
}

bool descendByName(Place *place, const QString &name)
{
    std::deque<Place> open{*place};
    std::unordered_set<SoNode *> seen;
    while (!open.empty()) {
        const Place parent = std::move(open.front());
        open.pop_front();
        int index = 0;
        for (SoNode *const node : childrenOf(parent.node)) {
            Place child{node, parent.path};
            child.path.append(index++);
            if (nameOf(node) == name) {
                *place = std::move(child);
                return true;
            }
            if (seen.insert(child.node).second)
                open.push_back(std::move(child));
        }
    }
    return false;
}

} // namespace

std::vector<SoNode *> childrenOf(const SoNode *node)
{
    std::vector<SoNode *> children = ownChildrenOf(node);
    for (const HeldNode &held : heldNodes(*node))
        children.push_back(held.node);
    return children;
}

std::vector<SoNode *> ownChildrenOf(const SoNode *node)
{
    const SoChildList *list = node->getChildren();
    std::vector<SoNode *> children(static_cast<std::size_t>(list ? list->getLength() : 0));
    for (std::size_t i = 0; i < children.size(); ++i)
        children[i] = (*list)[static_cast<int>(i)];
    return children;
}

bool hasChildren(const SoNode *node)
{
    const SoChildList *list = node->getChildren();
    return (list && list->getLength() > 0) || !heldNodes(*node).empty();
}

ScenePath findPath(SoNode *root, const QString &text, QString *problem)
{
    Place place{root, {}};
    for (const QString &step : text.split(QLatin1Char('/'))) {
        bool isIndex = false;
        const int index = step.toInt(&isIndex);
        if (isIndex ? descendByIndex(&place, index) : descendByName(&place, step))
            continue;
        *problem = QCoreApplication::translate("ScenePath", "There is no \"%1\" below \"%2\".")
                       .arg(step, place.path.isEmpty() ? QStringLiteral("/") : pathText(root, place.path));
        return {};
    }
    return place.path;
}

QString pathText(SoNode *root, const ScenePath &path)
{
    QStringList steps;
    const SoNode *parent = root;
    for (const int index : path) {
        const std::vector<SoNode *> children = childrenOf(parent);
        if (index < 0 || index >= static_cast<int>(children.size()))
            break; // the scene has changed under the path
        const SoNode *node = children[static_cast<std::size_t>(index)];
        const QString name = nameOf(node);
        const auto first = std::find_if(children.begin(), children.end(),
                                        [&](const SoNode *child) { return nameOf(child) == name; });
        steps.append(name.isEmpty() || *first != node ? QString::number(index) : name);
        parent = node;
    }
    return steps.join(QLatin1Char('/'));
}
