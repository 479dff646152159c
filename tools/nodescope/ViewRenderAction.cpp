// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ViewRenderAction.h"

SO_ACTION_SOURCE(ViewRenderAction);

void ViewRenderAction::initClass()
{
    if (getClassTypeId() != SoType::badType())
        return;
    SO_ACTION_INIT_CLASS(ViewRenderAction, SoGLRenderAction);
}

ViewRenderAction::ViewRenderAction(const SbViewportRegion &viewport) : SoGLRenderAction(viewport)
{
    SO_ACTION_CONSTRUCTOR(ViewRenderAction);
}

ViewRenderAction::~ViewRenderAction() = default;
