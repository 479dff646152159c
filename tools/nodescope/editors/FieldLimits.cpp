// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldLimits.h"

#include <Inventor/SbName.h>
#include <Inventor/fields/SoFieldContainer.h>

#include <cstring>

namespace
{
constexpr double pi = 3.14159265358979323846;
constexpr bool hard = true;
constexpr bool soft = false;

/// Holds for derived classes, too.
struct Limits {
    const char *nodeClass;
    const char *field;
    SliderSpan span;
};

constexpr Limits known[] = {
    {"AlphaTest", "value", {0, 1, hard}},
    {"BumpMapTransform", "rotation", {-pi, pi, soft}},
    {"CacheHint", "gfxValue", {0, 1, hard}},
    {"CacheHint", "memValue", {0, 1, hard}},
    {"Complexity", "textureQuality", {0, 1, hard}},
    {"Complexity", "value", {0, 1, hard}},
    {"DrawStyle", "linePattern", {0, 0xffff, soft}},
    {"DrawStyle", "linePatternScaleFactor", {1, 256, soft}},
    {"DrawStyle", "lineWidth", {0, 10, soft}},
    {"DrawStyle", "pointSize", {0, 10, soft}},
    {"Environment", "ambientIntensity", {0, 1, hard}},
    {"Light", "intensity", {0, 1, hard}},
    {"Material", "shininess", {0, 1, hard}},
    {"Material", "transparency", {0, 1, hard}},
    {"PerspectiveCamera", "heightAngle", {0, pi, hard}},
    {"PolygonOffset", "factor", {-10, 10, soft}},
    {"PolygonOffset", "units", {-10, 10, soft}},
    {"ReversePerspectiveCamera", "heightAngle", {0, pi, hard}},
    {"RotationXYZ", "angle", {-pi, pi, soft}},
    {"ShadowGroup", "intensity", {0, 1, hard}},
    {"ShadowGroup", "precision", {0, 1, hard}},
    {"ShadowGroup", "quality", {0, 1, hard}},
    {"ShadowGroup", "smoothBorder", {0, 1, hard}},
    {"ShadowGroup", "threshold", {0, 1, hard}},
    {"ShapeHints", "creaseAngle", {0, pi, hard}},
    {"SpotLight", "cutOffAngle", {0, pi, hard}},
    {"SpotLight", "dropOffRate", {0, 1, hard}},
    {"SpotLightDragger", "angle", {0, pi, hard}},
    {"Switch", "whichChild", {-3, 10, soft}},
    {"Texture2Transform", "rotation", {-pi, pi, soft}},
    {"TextureCombine", "alphaScale", {1, 4, hard}},
    {"TextureCombine", "rgbScale", {1, 4, hard}},
    {"TextureScalePolicy", "quality", {0, 1, hard}},
    {"TextureUnit", "unit", {0, 7, soft}},
    {"VRMLBackground", "groundAngle", {0, pi / 2, hard}},
    {"VRMLBackground", "skyAngle", {0, pi, hard}},
    {"VRMLCylinderSensor", "diskAngle", {0, pi / 2, hard}},
    {"VRMLCylinderSensor", "maxAngle", {-2 * pi, 2 * pi, soft}},
    {"VRMLCylinderSensor", "minAngle", {-2 * pi, 2 * pi, soft}},
    {"VRMLElevationGrid", "creaseAngle", {0, pi, hard}},
    {"VRMLExtrusion", "creaseAngle", {0, pi, hard}},
    {"VRMLIndexedFaceSet", "creaseAngle", {0, pi, hard}},
    {"VRMLInterpolator", "key", {0, 1, soft}},
    {"VRMLLight", "ambientIntensity", {0, 1, hard}},
    {"VRMLLight", "intensity", {0, 1, hard}},
    {"VRMLMaterial", "ambientIntensity", {0, 1, hard}},
    {"VRMLMaterial", "shininess", {0, 1, hard}},
    {"VRMLMaterial", "transparency", {0, 1, hard}},
    {"VRMLSound", "intensity", {0, 1, hard}},
    {"VRMLSound", "priority", {0, 1, hard}},
    {"VRMLSpotLight", "beamWidth", {0, pi / 2, hard}},
    {"VRMLSpotLight", "cutOffAngle", {0, pi / 2, hard}},
    {"VRMLSwitch", "whichChoice", {-1, 10, soft}},
    {"VRMLTextureTransform", "rotation", {-pi, pi, soft}},
    {"VRMLViewpoint", "fieldOfView", {0, pi, hard}},
};
} // namespace

std::optional<SliderSpan> FieldLimits::of(const SoFieldContainer &container, const char *field)
{
    for (SoType type = container.getTypeId(); !type.isBad(); type = type.getParent())
        for (const Limits &limits : known)
            if (type.getName() == limits.nodeClass && std::strcmp(field, limits.field) == 0)
                return limits.span;
    return std::nullopt;
}
