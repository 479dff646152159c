// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ViewCamera.h"

#include "CoinRef.h"

#include <Inventor/SbMatrix.h>
#include <Inventor/SbRotation.h>
#include <Inventor/SbViewportRegion.h>
#include <Inventor/SbXfBox3f.h>
#include <Inventor/SoFullPath.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoGetMatrixAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr float pi = 3.14159265F;
const SbVec3f cameraForward(0, 0, -1);
const SbVec3f cameraUp(0, 1, 0);
const SbVec3f cameraRight(1, 0, 0);

SbVec3f turned(const SoCamera &camera, const SbVec3f &vector)
{
    SbVec3f result;
    camera.orientation.getValue().multVec(vector, result);
    return result;
}

/// The path to the scene's first camera that is switched on; null where there is none.
SoPath *findCamera(SoSearchAction &search, SoNode *root)
{
    search.setType(SoCamera::getClassTypeId());
    search.setInterest(SoSearchAction::FIRST);
    search.apply(root);
    return search.getPath();
}

std::shared_ptr<SoCamera> copyInWorldSpace(const SoCamera &camera, SoPath *path, const SbViewportRegion &viewport)
{
    auto copy = coinRef(static_cast<SoCamera *>(camera.getTypeId().createInstance()));
    copy->copyFieldValues(&camera);
    copy->viewportMapping = SoCamera::ADJUST_CAMERA; // the others leave a part of the view empty
    SoGetMatrixAction action(viewport);
    action.apply(path);
    SbVec3f position;
    action.getMatrix().multVecMatrix(camera.position.getValue(), position);
    SbVec3f translation;
    SbVec3f scale;
    SbRotation rotation;
    SbRotation scaleOrientation;
    action.getMatrix().getTransform(translation, rotation, scale, scaleOrientation);
    copy->position = position;
    copy->orientation = camera.orientation.getValue() * rotation;
    return copy;
}

SbVec3f nearestAxis(const SbVec3f &vector)
{
    int largest = 0;
    for (int i = 1; i < 3; ++i)
        if (std::abs(vector[i]) > std::abs(vector[largest]))
            largest = i;
    SbVec3f axis(0, 0, 0);
    axis[largest] = vector[largest] < 0 ? -1.0F : 1.0F;
    return axis;
}

} // namespace

ViewCamera::ViewCamera() : m_camera(coinRef<SoCamera>(new SoPerspectiveCamera)) { }

void ViewCamera::goHome(SoNode *root, const SbViewportRegion &viewport)
{
    SoSearchAction search;
    SoPath *path = findCamera(search, root);
    if (path) {
        m_original = coinRef(static_cast<SoCamera *>(path->getTail()));
        m_camera = copyInWorldSpace(*m_original, path, viewport);
        focusOn(root, viewport);
    } else {
        m_original.reset();
        m_camera = coinRef<SoCamera>(new SoPerspectiveCamera);
        m_camera->orientation.setValue(SbRotation(cameraRight, -pi / 9) * SbRotation(cameraUp, pi / 6));
        viewAll(root, viewport);
    }
    m_up = nearestAxis(turned(*m_camera, cameraUp));
}

/// Few files say where their camera's focus is, about which the view turns: it is to lie in what is seen.
void ViewCamera::focusOn(SoNode *root, const SbViewportRegion &viewport)
{
    SoGetBoundingBoxAction action(viewport);
    action.apply(root);
    const SbBox3f box = action.getBoundingBox();
    const float depth = box.isEmpty() ? 0 : (box.getCenter() - m_camera->position.getValue()).dot(direction());
    if (depth > 0 && !box.intersect(focus()))
        m_camera->focalDistance = depth;
}

void ViewCamera::viewAll(SoNode *root, const SbViewportRegion &viewport)
{
    SoGetBoundingBoxAction action(viewport);
    action.apply(root);
    fit(action.getBoundingBox(), viewport);
}

void ViewCamera::frame(const SoPath &path, const SbViewportRegion &viewport)
{
    const std::shared_ptr<SoFullPath> place = coinRef(static_cast<SoFullPath *>(path.copy()));
    SoGetBoundingBoxAction action(viewport);
    action.apply(place.get());
    while (action.getBoundingBox().isEmpty() && place->getLength() > 1) {
        place->truncate(place->getLength() - 1);
        action.apply(place.get());
    }
    fit(action.getBoundingBox(), viewport);
}

/// Goes as near as the corners of the box allow.
void ViewCamera::fit(const SbBox3f &box, const SbViewportRegion &viewport)
{
    constexpr float margin = 1.05F;
    if (box.isEmpty())
        return;
    const float aspect = viewport.getViewportAspectRatio();
    const bool flat = m_camera->isOfType(SoOrthographicCamera::getClassTypeId());
    // How far one sees to the side and upwards, at a distance of 1; Coin's angle is that of the shorter side.
    const float upwards = (flat ? 1.0F : std::tan(heightAngle() / 2)) / std::min(aspect, 1.0F);
    const float sideways = upwards * aspect;
    float distance = 0;
    float height = 0;
    for (int corner = 0; corner < 8; ++corner) {
        const SbVec3f &low = box.getMin();
        const SbVec3f &high = box.getMax();
        const SbVec3f place(corner & 1 ? high[0] : low[0], corner & 2 ? high[1] : low[1],
                            corner & 4 ? high[2] : low[2]);
        SbVec3f seen; // from the centre, in the camera's axes
        m_camera->orientation.getValue().inverse().multVec(place - box.getCenter(), seen);
        const float room = std::max(std::abs(seen[0]) / sideways, std::abs(seen[1]) / upwards) * margin;
        distance = std::max(distance, seen[2] + room);
        height = std::max(height, 2 * room);
    }
    if (distance <= 0) // a single point: there is no size to fit
        distance = m_camera->focalDistance.getValue();
    else if (flat)
        static_cast<SoOrthographicCamera *>(m_camera.get())->height = height;
    m_camera->focalDistance = distance;
    m_camera->position = box.getCenter() - direction() * distance;
}

/// Cameras of other kinds than the perspective one see as it does, as far as it matters here.
float ViewCamera::heightAngle() const
{
    return m_camera->isOfType(SoPerspectiveCamera::getClassTypeId())
        ? static_cast<SoPerspectiveCamera *>(m_camera.get())->heightAngle.getValue()
        : pi / 4;
}

void ViewCamera::clip(SoNode *root, const SbViewportRegion &viewport)
{
    constexpr float slack = 0.01F;
    constexpr float depthRange = 1000; // what a depth buffer of 24 bits resolves well
    SoGetBoundingBoxAction action(viewport);
    action.apply(root);
    SbMatrix toEye;
    toEye.setTranslate(-m_camera->position.getValue());
    SbMatrix turn;
    turn.setRotate(m_camera->orientation.getValue().inverse());
    SbXfBox3f box = action.getXfBoundingBox();
    box.transform(toEye.multRight(turn));
    const SbBox3f seen = box.project();
    const float farthest = -seen.getMin()[2] * (1 + slack);
    if (seen.isEmpty() || !std::isfinite(farthest) || farthest <= 0)
        return;
    float nearest = -seen.getMax()[2] * (1 - slack);
    if (m_camera->isOfType(SoPerspectiveCamera::getClassTypeId()))
        nearest = std::max(nearest, farthest / depthRange);
    m_camera->enableNotify(FALSE); // this is part of drawing, no reason to draw again
    m_camera->nearDistance = nearest;
    m_camera->farDistance = farthest;
    m_camera->enableNotify(TRUE);
}

SbVec3f ViewCamera::direction() const
{
    return turned(*m_camera, cameraForward);
}

SbVec3f ViewCamera::focus() const
{
    return m_camera->position.getValue() + direction() * m_camera->focalDistance.getValue();
}

void ViewCamera::orbit(float right, float up)
{
    const SbVec3f centre = focus();
    const float limit = pi / 2 - 0.01F; // from straight above the picture would turn over
    const float height = std::asin(std::clamp(-direction().dot(m_up), -1.0F, 1.0F));
    const float climb = std::clamp(height + up, -limit, limit) - height;
    m_camera->orientation
        = SbRotation(cameraRight, -climb) * m_camera->orientation.getValue() * SbRotation(m_up, right);
    m_camera->position = centre - direction() * m_camera->focalDistance.getValue();
}

void ViewCamera::pan(float right, float up)
{
    const float size = m_camera->isOfType(SoOrthographicCamera::getClassTypeId())
        ? static_cast<SoOrthographicCamera *>(m_camera.get())->height.getValue()
        : 2 * m_camera->focalDistance.getValue() * std::tan(heightAngle() / 2);
    const SbVec3f way = turned(*m_camera, cameraRight) * right + turned(*m_camera, cameraUp) * up;
    m_camera->position = m_camera->position.getValue() - way * size;
}

void ViewCamera::zoom(float factor, const SbVec3f &fixed)
{
    SbVec3f way = (fixed - m_camera->position.getValue()) * (1 - 1 / factor);
    if (m_camera->isOfType(SoOrthographicCamera::getClassTypeId())) {
        auto &height = static_cast<SoOrthographicCamera *>(m_camera.get())->height;
        height = height.getValue() / factor;
        way -= direction() * way.dot(direction()); // nearer would make nothing larger
    } else {
        m_camera->focalDistance = m_camera->focalDistance.getValue() / factor;
    }
    m_camera->position = m_camera->position.getValue() + way;
}
