// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ViewRenderAction.h"

#include <Inventor/nodes/SoCamera.h>

SO_ACTION_SOURCE(ViewRenderAction);

void ViewRenderAction::initClass()
{
    if (getClassTypeId() != SoType::badType())
        return;
    SO_ACTION_INIT_CLASS(ViewRenderAction, SoGLRenderAction);
    SO_ACTION_ADD_METHOD(SoCamera, render);
}

ViewRenderAction::ViewRenderAction(const SbViewportRegion &viewport) : SoGLRenderAction(viewport)
{
    SO_ACTION_CONSTRUCTOR(ViewRenderAction);
}

ViewRenderAction::~ViewRenderAction() = default;

void ViewRenderAction::render(SoAction *action, SoNode *camera)
{
    auto *self = static_cast<ViewRenderAction *>(action);
    if (camera == self->m_camera)
        camera->GLRender(self);
}
