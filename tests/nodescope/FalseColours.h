// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FALSECOLOURS_H
#define FALSECOLOURS_H

#include <Inventor/SoFullPath.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodes/SoEnvironment.h>
#include <Inventor/nodes/SoFile.h>
#include <Inventor/nodes/SoLightModel.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoMaterialBinding.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoShape.h>
#include <Inventor/nodes/SoTexture2.h>

#include <QColor>

#include <algorithm>
#include <map>
#include <set>

template <class Action> void forEach(SoNode *root, const SoType &type, Action action)
{
    SoSearchAction search;
    search.setType(type);
    search.setInterest(SoSearchAction::ALL);
    search.setSearchingAll(TRUE);
    search.apply(root);
    for (int i = 0; i < search.getPaths().getLength(); ++i)
        action(*static_cast<SoFullPath *>(search.getPaths()[i]));
}

/// Gives each shape of a scene a flat colour of its own, which nothing in it or before it changes.
class FalseColours
{
public:
    explicit FalseColours(SoNode *scene)
    {
        forEach(scene, SoFile::getClassTypeId(), [](const SoFullPath &path) {
            auto *file = static_cast<SoFile *>(path.getTail());
            static_cast<SoGroup *>(path.getNodeFromTail(1))->replaceChild(file, file->copyChildren());
        });
        std::set<std::pair<SoGroup *, SoNode *>> places;
        forEach(scene, SoShape::getClassTypeId(), [&](const SoFullPath &path) {
            places.emplace(static_cast<SoGroup *>(path.getNodeFromTail(1)), path.getTail());
        });
        for (const auto &[group, shape] : places)
            group->replaceChild(shape, painted(shape));
        forEach(scene, SoEnvironment::getClassTypeId(), [](const SoFullPath &path) {
            static_cast<SoEnvironment *>(path.getTail())->fogType = SoEnvironment::NONE;
        });
    }

    QRgb of(const SoNode *shape) const { return m_colours.at(shape); }
    /// Null where it is no shape's.
    const SoNode *shapeOf(QRgb colour) const
    {
        const auto found = std::find_if(m_colours.begin(), m_colours.end(),
                                        [colour](const auto &entry) { return entry.second == colour; });
        return found == m_colours.end() ? nullptr : found->first;
    }

private:
    SoSeparator *painted(SoNode *shape)
    {
        const auto number = static_cast<QRgb>(m_colours.size() + 1);
        const QRgb rgb = 0xFF000000U | ((number * 0x9E3779U) & 0xFFFFFFU); // odd: no two are alike
        const QColor colour(m_colours.emplace(shape, rgb).first->second);
        auto *material = new SoMaterial;
        material->diffuseColor.setValue(static_cast<float>(colour.redF()), static_cast<float>(colour.greenF()),
                                        static_cast<float>(colour.blueF()));
        auto *light = new SoLightModel;
        light->model = SoLightModel::BASE_COLOR;
        auto *separator = new SoSeparator;
        for (SoNode *node : {static_cast<SoNode *>(material), static_cast<SoNode *>(light),
                             static_cast<SoNode *>(new SoMaterialBinding), static_cast<SoNode *>(new SoTexture2)}) {
            node->setOverride(TRUE);
            separator->addChild(node);
        }
        separator->addChild(shape);
        return separator;
    }

    std::map<const SoNode *, QRgb> m_colours;
};

#endif
