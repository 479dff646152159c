// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SHAPESUPPLY_H
#define SHAPESUPPLY_H

#include <Inventor/elements/SoMaterialBindingElement.h>

class SoAction;
class SoShape;

/// How many values there are where a shape stands, and how it goes through them.
struct ShapeSupply {
    static constexpr int unread = -1; ///< not known, or the shape has no use for them

    using Binding = SoMaterialBindingElement::Binding; ///< that of normals has the same values

    int coordinates = unread;
    int normals = unread;
    int materials = unread;
    int textureCoordinates = unread;
    Binding normalBinding = SoMaterialBindingElement::OVERALL;
    Binding materialBinding = SoMaterialBindingElement::OVERALL;

    /// In the action's state; before the action comes to the shape's own fields.
    static ShapeSupply of(SoAction &action, SoShape &shape);
    /// Of a shape whose place is not known: what its own fields hold.
    static ShapeSupply ofAlone(SoShape &shape);

    bool operator==(const ShapeSupply &other) const;
};

#endif
