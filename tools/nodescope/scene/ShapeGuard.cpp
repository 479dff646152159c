// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ShapeGuard.h"

#include "ShapeFault.h"
#include "ShapeSupply.h"

#include <Inventor/VRMLnodes/SoVRMLIndexedFaceSet.h>
#include <Inventor/VRMLnodes/SoVRMLIndexedLineSet.h>
#include <Inventor/VRMLnodes/SoVRMLPointSet.h>
#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/elements/SoCacheElement.h>
#include <Inventor/nodes/SoFaceSet.h>
#include <Inventor/nodes/SoIndexedFaceSet.h>
#include <Inventor/nodes/SoIndexedLineSet.h>
#include <Inventor/nodes/SoIndexedMarkerSet.h>
#include <Inventor/nodes/SoIndexedPointSet.h>
#include <Inventor/nodes/SoIndexedTriangleStripSet.h>
#include <Inventor/nodes/SoLineSet.h>
#include <Inventor/nodes/SoMarkerSet.h>
#include <Inventor/nodes/SoPointSet.h>
#include <Inventor/nodes/SoQuadMesh.h>
#include <Inventor/nodes/SoTriangleStripSet.h>

#include <type_traits>
#include <unordered_map>

namespace
{

/// What was found the last time. Node ids are never given twice, so that an entry of a node that is gone does no harm.
struct Finding {
    SbUniqueId nodeId = 0;
    ShapeSupply supply;
    QString fault;
};
using Findings = std::unordered_map<const SoNode *, Finding>;

Findings drawn;
Findings picked;
int changeCount = 0;

template <class Shape> class GuardedShape : public Shape
{
public:
    static void replace()
    {
        SoType::overrideType(Shape::getClassTypeId(), []() -> void * { return new GuardedShape; });
    }

    void GLRender(SoGLRenderAction *action) override
    {
        if (ShapeGuard::isSafe(*action, *this))
            Shape::GLRender(action);
        else
            SoCacheElement::invalidate(action->getState()); // what is missing now may come from elsewhere
    }

    void rayPick(SoRayPickAction *action) override
    {
        if (ShapeGuard::isSafe(*action, *this))
            Shape::rayPick(action);
    }

    void getBoundingBox(SoGetBoundingBoxAction *action) override
    {
        if (canMeasure(*action))
            Shape::getBoundingBox(action);
    }

    void computeBBox(SoAction *action, SbBox3f &box, SbVec3f &centre) override
    {
        if (canMeasure(*action))
            Shape::computeBBox(action, box, centre);
    }

private:
    ~GuardedShape() override = default;

    /// The others take all coordinates that there are.
    bool canMeasure(SoAction &action)
    {
        return !std::is_base_of_v<SoVRMLGeometry, Shape> || ShapeGuard::isSafe(action, *this);
    }
};

template <class... Shapes> struct Kinds {
    static void replace() { (GuardedShape<Shapes>::replace(), ...); }
    static bool have(const SoNode &node) { return (node.isOfType(Shapes::getClassTypeId()) || ...); }
};
using GuardedKinds = Kinds<SoFaceSet, SoLineSet, SoTriangleStripSet, SoPointSet, SoMarkerSet, SoQuadMesh,
                           SoIndexedFaceSet, SoIndexedLineSet, SoIndexedTriangleStripSet, SoIndexedPointSet,
                           SoIndexedMarkerSet, SoVRMLIndexedFaceSet, SoVRMLIndexedLineSet, SoVRMLPointSet>;

} // namespace

void ShapeGuard::guardShapes()
{
    GuardedKinds::replace();
}

bool ShapeGuard::isGuarded(const SoNode &node)
{
    return GuardedKinds::have(node);
}

bool ShapeGuard::isSafe(SoAction &action, SoShape &shape)
{
    const bool isDrawn = action.isOfType(SoGLRenderAction::getClassTypeId());
    const ShapeSupply supply = ShapeSupply::of(action, shape);
    Finding &finding = (isDrawn ? drawn : picked)[&shape];
    if (finding.nodeId == shape.getNodeId() && finding.supply == supply)
        return finding.fault.isEmpty();
    const QString fault = faultOf(shape, supply, !isDrawn);
    if (isDrawn && fault != finding.fault)
        ++changeCount;
    finding = {shape.getNodeId(), supply, fault};
    return fault.isEmpty();
}

QString ShapeGuard::obstacle(const SoNode *node)
{
    const auto found = drawn.find(node);
    return found != drawn.end() && found->second.nodeId == node->getNodeId() ? found->second.fault : QString();
}

void ShapeGuard::forget()
{
    drawn.clear();
    picked.clear();
}

int ShapeGuard::changes()
{
    return changeCount;
}
