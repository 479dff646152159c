// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ViewPickAction.h"

#include "CoinRef.h"
#include "ShapeGuard.h"

#include <Inventor/SoFullPath.h>
#include <Inventor/SoPickedPoint.h>
#include <Inventor/elements/SoDrawStyleElement.h>
#include <Inventor/elements/SoLinePatternElement.h>
#include <Inventor/elements/SoLineWidthElement.h>
#include <Inventor/elements/SoPointSizeElement.h>
#include <Inventor/lists/SoPickedPointList.h>
#include <Inventor/nodes/SoAnnotation.h>
#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/nodes/SoIndexedNurbsCurve.h>
#include <Inventor/nodes/SoIndexedNurbsSurface.h>
#include <Inventor/nodes/SoNurbsCurve.h>
#include <Inventor/nodes/SoNurbsSurface.h>
#include <Inventor/nodes/SoPickStyle.h>
#include <Inventor/nodes/SoShape.h>

#include <algorithm>
#include <initializer_list>
#include <utility>

SO_ACTION_SOURCE(ViewPickAction);

namespace
{
bool isNurbs(const SoNode &shape)
{
    for (const SoType &type : {SoNurbsSurface::getClassTypeId(), SoIndexedNurbsSurface::getClassTypeId(),
                               SoNurbsCurve::getClassTypeId(), SoIndexedNurbsCurve::getClassTypeId()})
        if (shape.isOfType(type))
            return true;
    return false;
}

bool canRayPick(SoAction &action, SoNode &shape)
{
    return !ShapeGuard::isGuarded(shape) || ShapeGuard::isSafe(action, static_cast<SoShape &>(shape));
}
} // namespace

void ViewPickAction::initClass()
{
    if (getClassTypeId() != SoType::badType())
        return;
    SO_ACTION_INIT_CLASS(ViewPickAction, SoRayPickAction);
    SO_ACTION_ADD_METHOD(SoCamera, useCamera);
    SO_ACTION_ADD_METHOD(SoShape, pickShape);
    SO_ACTION_ADD_METHOD(SoPickStyle, nullAction);
    SO_ACTION_ADD_METHOD(SoDrawStyle, useDrawStyle); // picking leaves it out
    for (const auto &[type, index] :
         {std::pair(SoDrawStyleElement::getClassTypeId(), SoDrawStyleElement::getClassStackIndex()),
          std::pair(SoLinePatternElement::getClassTypeId(), SoLinePatternElement::getClassStackIndex()),
          std::pair(SoLineWidthElement::getClassTypeId(), SoLineWidthElement::getClassStackIndex()),
          std::pair(SoPointSizeElement::getClassTypeId(), SoPointSizeElement::getClassStackIndex())})
        enableElement(type, index);
}

ViewPickAction::ViewPickAction(const SbViewportRegion &viewport, const SoCamera *camera)
    : SoRayPickAction(viewport), m_camera(camera)
{
    SO_ACTION_CONSTRUCTOR(ViewPickAction);
    setPickAll(TRUE);
}

ViewPickAction::~ViewPickAction() = default;

void ViewPickAction::apply(SoNode *root)
{
    m_unmet.clear();
    SoRayPickAction::apply(root);
}

std::vector<const SoPickedPoint *> ViewPickAction::hits() const
{
    const SoPickedPointList &list = getPickedPointList();
    std::vector<const SoPickedPoint *> hits;
    for (int i = 0; i < list.getLength(); ++i)
        hits.push_back(list[i]);
    std::stable_partition(hits.begin(), hits.end(), [](const SoPickedPoint *hit) {
        const auto *path = static_cast<const SoFullPath *>(hit->getPath());
        for (int i = 0; i < path->getLength(); ++i)
            if (path->getNode(i)->isOfType(SoAnnotation::getClassTypeId()))
                return true;
        return false;
    });
    return hits;
}

void ViewPickAction::useCamera(SoAction *action, SoNode *camera)
{
    auto *self = static_cast<ViewPickAction *>(action);
    if (camera == self->m_camera)
        camera->rayPick(self);
}

void ViewPickAction::useDrawStyle(SoAction *action, SoNode *style)
{
    style->doAction(action);
}

void ViewPickAction::pickShape(SoAction *action, SoNode *shape)
{
    auto *self = static_cast<ViewPickAction *>(action);
    if (SoDrawStyleElement::get(action->getState()) == SoDrawStyleElement::INVISIBLE)
        return;
    if (!self->m_meetsNothing && !isNurbs(*shape) && canRayPick(*action, *shape)) {
        shape->rayPick(self);
        return;
    }
    SbBox3f box;
    SbVec3f centre;
    static_cast<SoShape *>(shape)->computeBBox(self, box, centre);
    self->setObjectSpace();
    if (self->intersect(box, TRUE))
        self->m_unmet.push_back(coinRef(action->getCurPath()->copy()));
}
