// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef VIEWCAMERA_H
#define VIEWCAMERA_H

#include <Inventor/SbVec3f.h>

#include <memory>

class SbBox3f;
class SbViewportRegion;
class SoCamera;
class SoNode;

/**
 * The camera that the view looks through. It is never part of the scene: where the scene has a camera of
 * its own this is a copy of it in world space, so that looking around changes nothing that is saved.
 */
class ViewCamera
{
public:
    ViewCamera();

    SoCamera *node() const { return m_camera.get(); }
    /// The scene's camera that this one copies; null where the scene has none.
    SoCamera *original() const { return m_original.get(); }

    /// Takes the place of the first camera below @p root, or looks at everything where there is none.
    void goHome(SoNode *root, const SbViewportRegion &viewport);
    /// Keeps the direction and moves until everything below @p root is in sight.
    void viewAll(SoNode *root, const SbViewportRegion &viewport);

    /// Puts the near and the far plane around everything below @p root; before each frame.
    void clip(SoNode *root, const SbViewportRegion &viewport);

    /// Turns around the point looked at, by angles in radians: to the right and upwards.
    void orbit(float right, float up);
    /// Moves the picture by fractions of its shorter side.
    void pan(float right, float up);
    /// Makes everything larger by @p factor.
    void zoom(float factor);

private:
    void fit(const SbBox3f &box, float aspect);
    SbVec3f focus() const;
    SbVec3f direction() const;

    std::shared_ptr<SoCamera> m_camera;
    std::shared_ptr<SoCamera> m_original;
    SbVec3f m_up{0, 1, 0}; ///< what stays vertical in the picture: the axis nearest to the camera's own up
};

#endif
