// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEPICKER_H
#define SCENEPICKER_H

#include "ScenePath.h"

#include <Inventor/SbVec2f.h>
#include <Inventor/SbVec3f.h>
#include <Inventor/SbViewportRegion.h>

#include <optional>

class SoCamera;
class SoGLRenderAction;
class SoNode;
class SoPath;
class ViewPickAction;

/// Finds what a view shows at a place of its picture. In a current OpenGL context.
class ScenePicker
{
public:
    struct Hit {
        SbVec3f point;
        ScenePath path; ///< below the scene
    };

    /// @p root holds the camera, and last the scene; @p action draws it.
    ScenePicker(SoNode *root, const SoCamera *camera, SoGLRenderAction &action);

    /// What is drawn at @p place, from 0 to 1 from the left and from below. Lines and points are met within a pixel, or
    /// within @p reach pixels where there is nothing else; so are flat texts between their strokes.
    std::optional<Hit> hitAt(const SbVec2f &place, float reach);

private:
    std::optional<Hit> firstDrawn(const ViewPickAction &found, const SbVec2f &place, bool isNear) const;
    SbVec3f pointAt(const SbVec2f &place, float depth) const;

    SoNode *m_root;
    const SoCamera *m_camera;
    SoGLRenderAction &m_action;
    SbViewportRegion m_viewport;
};

#endif
