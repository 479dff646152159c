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
class SoPath;

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
    /// The same for what is below the end of @p path; for its next ancestor that has any shape, where that has none.
    void frame(const SoPath &path, const SbViewportRegion &viewport);

    /// Puts the near and the far plane around everything below @p root; before each frame.
    void clip(SoNode *root, const SbViewportRegion &viewport);

    /// Turns around the point looked at, by angles in radians: to the right and upwards.
    void orbit(float right, float up);
    /// Moves the picture by fractions of its shorter side.
    void pan(float right, float up);
    /// Makes everything larger by @p factor; what is at @p fixed stays where it is in the picture.
    void zoom(float factor, const SbVec3f &fixed);

    /// The point that the camera turns around.
    SbVec3f focus() const;
    /// Where it looks to.
    SbVec3f direction() const;

private:
    float heightAngle() const;
    void focusOn(SoNode *root, const SbViewportRegion &viewport);
    void fit(const SbBox3f &box, const SbViewportRegion &viewport);

    std::shared_ptr<SoCamera> m_camera;
    std::shared_ptr<SoCamera> m_original;
    SbVec3f m_up{0, 1, 0}; ///< what stays vertical in the picture: the axis nearest to the camera's own up
};

#endif
