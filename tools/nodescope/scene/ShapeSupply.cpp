// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ShapeSupply.h"

#include <Inventor/VRMLnodes/SoVRMLGeometry.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/elements/SoCoordinateElement.h>
#include <Inventor/elements/SoLazyElement.h>
#include <Inventor/elements/SoMultiTextureCoordinateElement.h>
#include <Inventor/elements/SoMultiTextureEnabledElement.h>
#include <Inventor/elements/SoNormalBindingElement.h>
#include <Inventor/elements/SoNormalElement.h>
#include <Inventor/fields/SoMField.h>
#include <Inventor/fields/SoSFBool.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/nodes/SoShape.h>
#include <Inventor/nodes/SoVertexProperty.h>
#include <Inventor/nodes/SoVertexShape.h>

#include <algorithm>
#include <tuple>

static_assert(int(SoNormalBindingElement::PER_VERTEX_INDEXED) == int(SoMaterialBindingElement::PER_VERTEX_INDEXED));

namespace
{

SoNode *nodeIn(const SoShape &shape, const char *field)
{
    auto *const holder = static_cast<SoSFNode *>(shape.getField(field));
    return holder ? holder->getValue() : nullptr;
}

int countIn(const SoShape &shape, const char *field, const char *values)
{
    const SoNode *const node = nodeIn(shape, field);
    const SoField *const list = node ? node->getField(values) : nullptr;
    return list ? static_cast<const SoMField *>(list)->getNum() : ShapeSupply::unread;
}

ShapeSupply::Binding vrmlBinding(const SoShape &shape, const char *perVertex, const char *indices)
{
    const auto *const flag = static_cast<const SoSFBool *>(shape.getField(perVertex));
    const auto *const list = static_cast<const SoMField *>(shape.getField(indices));
    if (!flag || flag->getValue())
        return SoMaterialBindingElement::PER_VERTEX_INDEXED;
    return list && list->getNum() > 0 ? SoMaterialBindingElement::PER_FACE_INDEXED : SoMaterialBindingElement::PER_FACE;
}

/// VRML's shapes hold everything themselves.
ShapeSupply ofVrml(const SoShape &shape)
{
    ShapeSupply supply;
    supply.coordinates = std::max(countIn(shape, "coord", "point"), 0);
    supply.normals = countIn(shape, "normal", "vector");
    supply.materials = countIn(shape, "color", "color");
    supply.textureCoordinates = countIn(shape, "texCoord", "point");
    supply.normalBinding = vrmlBinding(shape, "normalPerVertex", "normalIndex");
    supply.materialBinding = vrmlBinding(shape, "colorPerVertex", "colorIndex");
    return supply;
}

template <class Element> bool isKept(SoState &state)
{
    return state.isElementEnabled(Element::getClassStackIndex());
}

/// Drawn without light, a shape leaves its normals alone, and without a texture the coordinates of one.
ShapeSupply inState(SoState &state, bool isDrawn)
{
    ShapeSupply supply;
    supply.coordinates = SoCoordinateElement::getInstance(&state)->getNum();
    const bool isLit = !isDrawn || SoLazyElement::getLightModel(&state) != SoLazyElement::BASE_COLOR;
    if (isLit && isKept<SoNormalElement>(state)) {
        supply.normals = SoNormalElement::getInstance(&state)->getNum();
        supply.normalBinding = static_cast<ShapeSupply::Binding>(SoNormalBindingElement::get(&state));
    }
    if (isKept<SoLazyElement>(state) && isKept<SoMaterialBindingElement>(state)) {
        supply.materials = SoLazyElement::getInstance(&state)->getNumDiffuse();
        supply.materialBinding = SoMaterialBindingElement::get(&state);
    }
    const bool isTextured = !isDrawn || SoMultiTextureEnabledElement::get(&state);
    if (isTextured && isKept<SoMultiTextureCoordinateElement>(state)
        && SoMultiTextureCoordinateElement::getType(&state) != SoMultiTextureCoordinateElement::FUNCTION)
        supply.textureCoordinates = SoMultiTextureCoordinateElement::getInstance(&state)->getNum();
    return supply;
}

} // namespace

ShapeSupply ShapeSupply::of(SoAction &action, SoShape &shape)
{
    if (shape.isOfType(SoVRMLGeometry::getClassTypeId()))
        return ofVrml(shape);
    SoState &state = *action.getState();
    const bool isDrawn = !action.isOfType(SoRayPickAction::getClassTypeId());
    SoNode *const own = static_cast<SoVertexShape &>(shape).vertexProperty.getValue();
    if (!own)
        return inState(state, isDrawn);
    state.push();
    own->doAction(&action);
    const ShapeSupply supply = inState(state, isDrawn);
    state.pop();
    return supply;
}

ShapeSupply ShapeSupply::ofAlone(SoShape &shape)
{
    if (shape.isOfType(SoVRMLGeometry::getClassTypeId()))
        return ofVrml(shape);
    ShapeSupply supply;
    const auto given = [&shape](const char *values) {
        const int count = countIn(shape, "vertexProperty", values);
        return count > 0 ? count : unread; // else it may be found before the shape
    };
    const auto *const own = static_cast<SoVertexProperty *>(nodeIn(shape, "vertexProperty"));
    supply.coordinates = given("vertex");
    supply.normals = given("normal");
    supply.materials = given("orderedRGBA");
    supply.textureCoordinates = given("texCoord");
    if (own) {
        supply.normalBinding = static_cast<Binding>(own->normalBinding.getValue());
        supply.materialBinding = static_cast<Binding>(own->materialBinding.getValue());
    }
    return supply;
}

bool ShapeSupply::operator==(const ShapeSupply &other) const
{
    const auto all = [](const ShapeSupply &supply) {
        return std::tie(supply.coordinates, supply.normals, supply.materials, supply.textureCoordinates,
                        supply.normalBinding, supply.materialBinding);
    };
    return all(*this) == all(other);
}
