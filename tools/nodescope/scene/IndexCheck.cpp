// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "IndexCheck.h"

#include "ShapeFault.h"
#include "ShapeGuard.h"
#include "ShapeSupply.h"

#include <Inventor/actions/SoCallbackAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/fields/SoField.h>
#include <Inventor/lists/SoPathList.h>
#include <Inventor/nodes/SoShape.h>

namespace
{

SoNode *scene = nullptr;

/// The shape, and the first fault in one of its places.
struct Question {
    SoShape &shape;
    QString fault;
};

SoCallbackAction::Response answer(void *data, SoCallbackAction *action, const SoNode *node)
{
    auto &question = *static_cast<Question *>(data);
    if (node == &question.shape && question.fault.isEmpty())
        question.fault = faultOf(question.shape, ShapeSupply::of(*action, question.shape));
    return SoCallbackAction::PRUNE;
}

} // namespace

void IndexCheck::setScene(SoNode *root)
{
    scene = root;
}

QString IndexCheck::faultOf(const SoField &field)
{
    auto *const node = dynamic_cast<SoNode *>(field.getContainer());
    if (!node || !ShapeGuard::isGuarded(*node))
        return {};
    Question question{static_cast<SoShape &>(*node), {}};
    SoSearchAction search;
    search.setNode(node);
    search.setInterest(SoSearchAction::ALL);
    search.setSearchingAll(TRUE);
    if (scene)
        search.apply(scene);
    const SoPathList &places = search.getPaths();
    if (places.getLength() == 0)
        return ::faultOf(question.shape, ShapeSupply::ofAlone(question.shape));
    SoCallbackAction action;
    action.addPreCallback(node->getTypeId(), answer, &question);
    for (int i = 0; i < places.getLength(); ++i)
        action.apply(places[i]);
    return question.fault;
}
