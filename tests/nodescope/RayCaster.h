// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef RAYCASTER_H
#define RAYCASTER_H

#include "tools/nodescope/ScenePath.h"

#include <Inventor/SbLine.h>
#include <Inventor/SbPlane.h>
#include <Inventor/SbViewVolume.h>
#include <Inventor/SbViewportRegion.h>

#include <QPoint>
#include <QSize>

#include <set>
#include <vector>

class SoCallbackAction;
class SoCamera;
class SoNode;
class SoPrimitiveVertex;

/**
 * What stands first on the line of sight through a pixel, by arithmetic alone: no OpenGL, no pick action.
 *
 * For each pixel the answer is sure only where the lines of sight through its corners say the same, no other shape
 * stands as near as a depth buffer tells apart, and no edge of a line, point or flat text is near.
 */
class RayCaster
{
public:
    /// A shape where it stands in the scene; no node: none.
    struct Shape {
        ScenePath path;
        const SoNode *node = nullptr;
    };
    struct Answer {
        Shape shape;
        bool isSure = true;
    };

    RayCaster(SoCamera *camera, const QSize &picture, const std::vector<QPoint> &pixels);
    void cast(SoNode *scene);

    Answer answer(std::size_t pixel) const;
    /// Whether Coin tells nothing of what the shape looks like, as of NURBS.
    bool isSilent(const SoNode *shape) const { return m_told.count(shape) == 0; }
    /// Whether there are lines, points or flat texts.
    bool hasThinShapes() const { return m_hasThinShapes; }

private:
    struct Ray {
        SbVec3f start;
        SbVec3f direction;
        float nearest;
        float next; ///< of any other shape
        std::size_t shape = 0;
    };
    static constexpr int raysPerPixel = 5;
    struct Sample {
        Ray rays[raysPerPixel];
        bool isSure = true;
    };

    void enter(SoCallbackAction &action);
    void hitTriangle(const SbVec3f (&corners)[3]);
    void hitLine(const SbVec3f &from, const SbVec3f &to, float width);
    void hit(Ray &ray, float distance);
    template <class Action> void overPixels(const SbVec3f *points, int count, float margin, Action action);
    SbVec3f project(const SbVec3f &point) const; ///< to pixels
    bool isClipped(const SbVec3f &point) const;

    static void primitives(RayCaster *self, SoCallbackAction *action, const SoPrimitiveVertex *const *vertices, int n);

    SoCamera *m_camera;
    SbViewVolume m_volume;
    QSize m_size;
    std::vector<Sample> m_samples;
    std::vector<int> m_atPixel; ///< -1: nobody asks
    std::vector<Shape> m_shapes{1}; ///< the first is none
    std::set<const SoNode *> m_told;
    std::vector<SbPlane> m_planes;
    int m_drawnSide = 0; ///< of triangles: 1 counterclockwise, -1 clockwise, 0 both
    bool m_hasThinShapes = false;
    bool m_isFlatText = false;
    bool m_isOutlined = false;
    bool m_isInvisible = false;
};

#endif
