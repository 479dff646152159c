// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "AngleFields.h"

#include <Inventor/SbName.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoMFRotation.h>
#include <Inventor/fields/SoSFRotation.h>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace
{
struct AngleField {
    const char *nodeClass; ///< and those derived from it
    const char *field;
};

constexpr AngleField angleFields[] = {
    {"PerspectiveCamera", "heightAngle"},  {"SpotLight", "cutOffAngle"},
    {"ShapeHints", "creaseAngle"},         {"RotationXYZ", "angle"},
    {"Texture2Transform", "rotation"},     {"SpotLightDragger", "angle"},
    {"VRMLCylinderSensor", "diskAngle"},   {"VRMLCylinderSensor", "maxAngle"},
    {"VRMLCylinderSensor", "minAngle"},    {"VRMLCylinderSensor", "offset"},
    {"VRMLElevationGrid", "creaseAngle"},  {"VRMLExtrusion", "creaseAngle"},
    {"VRMLIndexedFaceSet", "creaseAngle"}, {"VRMLSpotLight", "beamWidth"},
    {"VRMLSpotLight", "cutOffAngle"},      {"VRMLTextureTransform", "rotation"},
    {"VRMLViewpoint", "fieldOfView"},
};

bool isOfClass(SoType type, const char *name)
{
    for (; !type.isBad(); type = type.getParent())
        if (std::strcmp(type.getName().getString(), name) == 0)
            return true;
    return false;
}
} // namespace

bool AngleFields::isAngle(const SoField &field)
{
    const SoFieldContainer *const container = field.getContainer();
    SbName name;
    if (field.isOfType(SoMFRotation::getClassTypeId()))
        return true;
    return container && container->getFieldName(&field, name)
        && std::any_of(std::begin(angleFields), std::end(angleFields), [&](const AngleField &row) {
               return name == row.field && isOfClass(container->getTypeId(), row.nodeClass);
           });
}

bool AngleFields::isAngle(const SoField &field, int component)
{
    constexpr int behindTheAxis = 3;
    if (field.isOfType(SoSFRotation::getClassTypeId()))
        return component == behindTheAxis;
    return component == 0 && isAngle(field);
}
