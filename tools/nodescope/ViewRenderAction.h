// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef VIEWRENDERACTION_H
#define VIEWRENDERACTION_H

#include <Inventor/actions/SoGLRenderAction.h>

class SoCamera;

/// Draws a scene through one camera; passOverSceneCameras() sees to those that stand in the scene itself.
class ViewRenderAction : public SoGLRenderAction
{
    SO_ACTION_HEADER(ViewRenderAction);

public:
    static void initClass();

    explicit ViewRenderAction(const SbViewportRegion &viewport);
    ~ViewRenderAction() override;

    const SoCamera *camera() const { return m_camera; }
    void setCamera(const SoCamera *camera) { m_camera = camera; }

private:
    const SoCamera *m_camera = nullptr; ///< only compared
};

#endif
