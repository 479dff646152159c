// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ScenePicker.h"

#include "DrawnPixel.h"
#include "ViewPickAction.h"

#include <Inventor/SbMatrix.h>
#include <Inventor/SoFullPath.h>
#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/details/SoLineDetail.h>
#include <Inventor/details/SoPointDetail.h>
#include <Inventor/details/SoTextDetail.h>
#include <Inventor/nodes/SoCamera.h>

#include <algorithm>

namespace
{

/// What a path from the root on is to the scene.
ScenePath belowScene(const SoPath &path)
{
    const auto &full = static_cast<const SoFullPath &>(path);
    ScenePath indices;
    for (int i = 2; i < full.getLength(); ++i)
        indices.append(full.getIndex(i));
    return indices;
}

template <class Detail> bool tellsOf(const SoPickedPoint &point)
{
    return point.getDetail() && point.getDetail()->isOfType(Detail::getClassTypeId());
}

/// These are met nearby, too, where nothing of them is drawn.
bool isThin(const SoPickedPoint &point)
{
    return tellsOf<SoLineDetail>(point) || tellsOf<SoPointDetail>(point);
}

} // namespace

ScenePicker::ScenePicker(SoNode *root, const SoCamera *camera, SoGLRenderAction &action)
    : m_root(root), m_camera(camera), m_action(action), m_viewport(action.getViewportRegion())
{
}

std::optional<ScenePicker::Hit> ScenePicker::hitAt(const SbVec2f &place, float reach)
{
    ViewPickAction action(m_viewport, m_camera);
    action.setNormalizedPoint(place);
    action.setRadius(1);
    action.apply(m_root);
    if (const std::optional<Hit> hit = firstDrawn(action, place, false))
        return hit;
    action.setRadius(reach);
    action.apply(m_root);
    if (const std::optional<Hit> hit = firstDrawn(action, place, true))
        return hit;
    action.meetNothing();
    action.apply(m_root);
    return firstDrawn(action, place, true);
}

/// A line of sight also meets the sides of a solid that are not drawn as they look away, and meets no NURBS at all:
/// OpenGL tells. Between the strokes of a flat text nothing is drawn, but that counts only where nothing else is.
std::optional<ScenePicker::Hit> ScenePicker::firstDrawn(const ViewPickAction &found, const SbVec2f &place,
                                                        bool isNear) const
{
    const std::vector<const SoPickedPoint *> hits = found.hits();
    if (hits.empty() && found.unmet().empty())
        return std::nullopt;
    const SbVec2s size = m_viewport.getViewportSizePixels();
    const QPoint pixel(static_cast<int>(place[0] * size[0]), static_cast<int>(place[1] * size[1]));
    DrawnPixel drawn(m_action, QSize(size[0], size[1]), pixel);
    std::optional<Hit> first;
    const auto hit = std::find_if(hits.begin(), hits.end(), [&](const SoPickedPoint *point) {
        return isThin(*point) || (isNear && tellsOf<SoTextDetail>(*point)) || drawn.isDrawn(point->getPath());
    });
    if (hit != hits.end())
        first = Hit{(*hit)->getPoint(), belowScene(*(*hit)->getPath())};
    const auto distance = [&](const SbVec3f &point) { return (point - pointAt(place, 0)).length(); };
    for (const std::shared_ptr<SoPath> &path : found.unmet()) {
        if (!drawn.isDrawn(path.get()))
            continue;
        const SbVec3f point = pointAt(place, drawn.depth());
        if (!first || distance(point) < distance(first->point))
            first = Hit{point, belowScene(*path)};
    }
    return first;
}

/// At a depth as OpenGL counts it.
SbVec3f ScenePicker::pointAt(const SbVec2f &place, float depth) const
{
    SbViewportRegion region;
    SbMatrix toEye;
    SbMatrix toScreen;
    m_camera->getViewVolume(m_viewport, region).getMatrices(toEye, toScreen);
    SbVec3f point;
    toEye.multRight(toScreen).inverse().multVecMatrix(SbVec3f(2 * place[0] - 1, 2 * place[1] - 1, 2 * depth - 1),
                                                      point);
    return point;
}
