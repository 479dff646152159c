// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RayCaster.h"

#include "tools/nodescope/CoinRef.h"

#include <Inventor/SoFullPath.h>
#include <Inventor/SoPrimitiveVertex.h>
#include <Inventor/actions/SoCallbackAction.h>
#include <Inventor/elements/SoClipPlaneElement.h>
#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoShape.h>
#include <Inventor/nodes/SoText2.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
constexpr float infinite = std::numeric_limits<float>::infinity();
const SbVec2f offsets[] = {{0, 0}, {-0.5F, -0.5F}, {0.5F, -0.5F}, {-0.5F, 0.5F}, {0.5F, 0.5F}};
} // namespace

RayCaster::RayCaster(SoCamera *camera, const QSize &picture, const std::vector<QPoint> &pixels)
    : m_camera(camera), m_size(picture), m_samples(pixels.size()),
      m_atPixel(static_cast<std::size_t>(picture.width()) * static_cast<std::size_t>(picture.height()), -1)
{
    const float aspect = static_cast<float>(picture.width()) / static_cast<float>(picture.height());
    m_volume = camera->getViewVolume(aspect);
    if (aspect < 1)
        m_volume.scale(1 / aspect);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        m_atPixel[static_cast<std::size_t>(pixels[i].y() * picture.width() + pixels[i].x())] = static_cast<int>(i);
        for (int k = 0; k < raysPerPixel; ++k) {
            const float x = static_cast<float>(pixels[i].x()) + 0.5F + offsets[k][0];
            const float y = static_cast<float>(pixels[i].y()) + 0.5F + offsets[k][1];
            SbVec3f from;
            SbVec3f to;
            m_volume.projectPointToLine(
                SbVec2f(x / static_cast<float>(picture.width()), 1 - y / static_cast<float>(picture.height())), from,
                to);
            m_samples[i].rays[k] = {from, to - from, infinite, infinite, 0}; // from the near plane to the far one
        }
    }
}

void RayCaster::cast(SoNode *scene)
{
    SoCallbackAction action(SbViewportRegion(static_cast<short>(m_size.width()), static_cast<short>(m_size.height())));
    const SoType shapes = SoShape::getClassTypeId();
    action.addPreCallback(
        shapes,
        [](void *self, SoCallbackAction *at, const SoNode *) {
            static_cast<RayCaster *>(self)->enter(*at);
            return SoCallbackAction::CONTINUE;
        },
        this);
    action.addTriangleCallback(
        shapes,
        [](void *self, SoCallbackAction *at, const SoPrimitiveVertex *a, const SoPrimitiveVertex *b,
           const SoPrimitiveVertex *c) {
            const SoPrimitiveVertex *const vertices[] = {a, b, c};
            primitives(static_cast<RayCaster *>(self), at, vertices, 3);
        },
        this);
    action.addLineSegmentCallback(
        shapes,
        [](void *self, SoCallbackAction *at, const SoPrimitiveVertex *a, const SoPrimitiveVertex *b) {
            const SoPrimitiveVertex *const vertices[] = {a, b};
            primitives(static_cast<RayCaster *>(self), at, vertices, 2);
        },
        this);
    action.addPointCallback(
        shapes,
        [](void *self, SoCallbackAction *at, const SoPrimitiveVertex *a) {
            primitives(static_cast<RayCaster *>(self), at, &a, 1);
        },
        this);
    const std::shared_ptr<SoSeparator> root = coinRef(new SoSeparator);
    root->addChild(m_camera); // how finely a shape is made may depend on it
    root->addChild(scene);
    action.apply(root.get());
}

RayCaster::Answer RayCaster::answer(std::size_t pixel) const
{
    constexpr float depthStep = 1e-3F; // of the way from the near plane to the far one
    const Sample &sample = m_samples[pixel];
    Answer answer{m_shapes[sample.rays[0].shape], sample.isSure};
    for (const Ray &ray : sample.rays)
        if (ray.shape != sample.rays[0].shape || ray.next - ray.nearest < depthStep)
            answer.isSure = false;
    return answer;
}

void RayCaster::enter(SoCallbackAction &action)
{
    const auto *path = static_cast<const SoFullPath *>(action.getCurPath());
    ScenePath indices;
    for (int i = 2; i < path->getLength(); ++i)
        indices.append(path->getIndex(i));
    m_shapes.push_back({indices, path->getTail()});
    m_hasThinShapes = m_hasThinShapes || path->getTail()->isOfType(SoText2::getClassTypeId());
    m_isFlatText = path->getTail()->isOfType(SoText2::getClassTypeId());
    m_isOutlined = action.getDrawStyle() == SoDrawStyle::LINES || action.getDrawStyle() == SoDrawStyle::POINTS;
    m_isInvisible = action.getDrawStyle() == SoDrawStyle::INVISIBLE;
    const bool isSolid = action.getShapeType() == SoShapeHints::SOLID;
    m_drawnSide = !isSolid || action.getVertexOrdering() == SoShapeHints::UNKNOWN_ORDERING ? 0
        : action.getVertexOrdering() == SoShapeHints::CLOCKWISE                            ? -1
                                                                                           : 1;
    if (action.getModelMatrix().det3() < 0)
        m_drawnSide = -m_drawnSide;
    m_planes.clear();
    const SoClipPlaneElement *clip = SoClipPlaneElement::getInstance(action.getState());
    for (int i = 0; i < clip->getNum(); ++i)
        m_planes.push_back(clip->get(i, TRUE));
}

void RayCaster::primitives(RayCaster *self, SoCallbackAction *action, const SoPrimitiveVertex *const *vertices, int n)
{
    if (self->m_isInvisible)
        return;
    self->m_told.insert(self->m_shapes.back().node);
    if (n < 3)
        self->m_hasThinShapes = true;
    SbVec3f points[3];
    for (int i = 0; i < n; ++i)
        action->getModelMatrix().multVecMatrix(vertices[i]->getPoint(), points[i]);
    if (self->m_isFlatText)
        self->overPixels(points, n, 2, [](Sample &sample, const SbVec2f &) { sample.isSure = false; });
    else if (n == 3 && self->m_isOutlined) // which of a triangle's sides are drawn, nobody says here
        for (int i = 0; i < n; ++i)
            self->overPixels(points, n, action->getLineWidth() + 2,
                             [](Sample &sample, const SbVec2f &) { sample.isSure = false; });
    else if (n == 3)
        self->hitTriangle(points);
    else
        self->hitLine(points[0], points[n - 1],
                      std::max(1.0F, n == 1 ? action->getPointSize() : action->getLineWidth()));
}

/// Every pixel asked for that a shape with these corners may touch.
template <class Action> void RayCaster::overPixels(const SbVec3f *points, int count, float margin, Action action)
{
    float low[2] = {0, 0};
    float high[2] = {static_cast<float>(m_size.width() - 1), static_cast<float>(m_size.height() - 1)};
    bool isBehind = false;
    for (int i = 0; i < count; ++i)
        isBehind = isBehind
            || (points[i] - m_volume.getProjectionPoint()).dot(m_volume.getProjectionDirection())
                < m_volume.getNearDist();
    for (int axis = 0; axis < 2 && !isBehind; ++axis) {
        float least = infinite;
        float most = -infinite;
        for (int i = 0; i < count; ++i) {
            const float place = project(points[i])[axis];
            least = std::min(least, place);
            most = std::max(most, place);
        }
        low[axis] = std::max(low[axis], std::floor(least - margin));
        high[axis] = std::min(high[axis], std::ceil(most + margin));
    }
    for (int y = static_cast<int>(low[1]); y <= static_cast<int>(high[1]); ++y)
        for (int x = static_cast<int>(low[0]); x <= static_cast<int>(high[0]); ++x)
            if (const int index = m_atPixel[static_cast<std::size_t>(y * m_size.width() + x)]; index >= 0)
                action(m_samples[static_cast<std::size_t>(index)],
                       SbVec2f(static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F));
}

void RayCaster::hitTriangle(const SbVec3f (&corners)[3])
{
    const SbVec3f u = corners[1] - corners[0];
    const SbVec3f v = corners[2] - corners[0];
    overPixels(corners, 3, 1, [&](Sample &sample, const SbVec2f &) {
        for (Ray &ray : sample.rays) {
            const SbVec3f p = ray.direction.cross(v);
            const float determinant = u.dot(p);
            if (determinant == 0 || determinant * static_cast<float>(m_drawnSide) < 0)
                continue;
            const SbVec3f way = ray.start - corners[0];
            const float a = way.dot(p) / determinant;
            const SbVec3f q = way.cross(u);
            const float b = ray.direction.dot(q) / determinant;
            const float distance = v.dot(q) / determinant;
            if (a >= 0 && b >= 0 && a + b <= 1 && distance >= 0 && !isClipped(ray.start + ray.direction * distance))
                hit(ray, distance);
        }
    });
}

/// A line, or a point where both ends are one.
void RayCaster::hitLine(const SbVec3f &from, const SbVec3f &to, float width)
{
    const SbVec3f ends[] = {from, to};
    const SbVec3f first = project(from);
    const SbVec3f way = project(to) - first;
    const float length = way[0] * way[0] + way[1] * way[1];
    overPixels(ends, 2, width + 2, [&](Sample &sample, const SbVec2f &middle) {
        const float along = length > 0
            ? std::clamp(((middle[0] - first[0]) * way[0] + (middle[1] - first[1]) * way[1]) / length, 0.0F, 1.0F)
            : 0;
        const SbVec3f nearest = first + way * along;
        const float distance = std::hypot(middle[0] - nearest[0], middle[1] - nearest[1]);
        if (distance > width / 2 + 1.5F)
            return;
        if (distance > 0.3F * width || along == 0 || along == 1)
            sample.isSure = false;
        for (Ray &ray : sample.rays) { // where it passes by the line
            SbVec3f onRay;
            SbVec3f onLine;
            if (length > 0)
                SbLine(ray.start, ray.start + ray.direction).getClosestPoints(SbLine(from, to), onRay, onLine);
            else
                onRay = SbLine(ray.start, ray.start + ray.direction).getClosestPoint(from);
            hit(ray, (onRay - ray.start).length() / ray.direction.length());
        }
    });
}

void RayCaster::hit(Ray &ray, float distance)
{
    const std::size_t shape = m_shapes.size() - 1;
    if (ray.shape == shape) {
        ray.nearest = std::min(ray.nearest, distance);
    } else if (distance < ray.nearest) {
        ray.next = ray.nearest;
        ray.nearest = distance;
        ray.shape = shape;
    } else {
        ray.next = std::min(ray.next, distance);
    }
}

SbVec3f RayCaster::project(const SbVec3f &point) const
{
    SbVec3f place;
    m_volume.projectToScreen(point, place);
    return SbVec3f(place[0] * static_cast<float>(m_size.width()), (1 - place[1]) * static_cast<float>(m_size.height()),
                   0);
}

bool RayCaster::isClipped(const SbVec3f &point) const
{
    return std::any_of(m_planes.begin(), m_planes.end(),
                       [&](const SbPlane &plane) { return !plane.isInHalfSpace(point); });
}
