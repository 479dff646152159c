// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneCameras.h"

#include "ViewRenderAction.h"

#include <Inventor/nodes/SoFrustumCamera.h>
#include <Inventor/nodes/SoOrthographicCamera.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <Inventor/nodes/SoReversePerspectiveCamera.h>

namespace
{

template <class Camera> class SceneCamera : public Camera
{
public:
    static void replace()
    {
        SoType::overrideType(Camera::getClassTypeId(), []() -> void * { return new SceneCamera; });
    }

    void GLRender(SoGLRenderAction *action) override
    {
        const bool isView = action->isOfType(ViewRenderAction::getClassTypeId());
        if (!isView || static_cast<ViewRenderAction *>(action)->camera() == this)
            Camera::GLRender(action);
    }

private:
    ~SceneCamera() override = default;
};

} // namespace

void passOverSceneCameras()
{
    SceneCamera<SoPerspectiveCamera>::replace();
    SceneCamera<SoOrthographicCamera>::replace();
    SceneCamera<SoFrustumCamera>::replace();
    SceneCamera<SoReversePerspectiveCamera>::replace();
}
