// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "DrawnPixel.h"

#include <Inventor/SoPath.h>
#include <Inventor/actions/SoGLRenderAction.h>

#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace
{
constexpr GLenum stencilIndex = 0x1901; // these two Qt's headers leave out
constexpr GLenum depthComponent = 0x1902;
} // namespace

DrawnPixel::DrawnPixel(SoGLRenderAction &action, const QSize &picture, const QPoint &pixel)
    : m_action(action), m_buffer(picture, QOpenGLFramebufferObject::CombinedDepthStencil), m_pixel(pixel)
{
}

bool DrawnPixel::isDrawn(SoPath *path)
{
    QOpenGLFunctions &gl = *QOpenGLContext::currentContext()->functions();
    m_buffer.bind();
    gl.glEnable(GL_SCISSOR_TEST);
    gl.glScissor(m_pixel.x(), m_pixel.y(), 1, 1);
    gl.glClearStencil(0);
    gl.glClear(GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    gl.glEnable(GL_DEPTH_TEST);
    gl.glEnable(GL_STENCIL_TEST);
    gl.glStencilFunc(GL_ALWAYS, 1, 1);
    gl.glStencilOp(GL_REPLACE, GL_REPLACE, GL_REPLACE);
    m_action.apply(path);
    gl.glDisable(GL_STENCIL_TEST);
    gl.glDisable(GL_SCISSOR_TEST);
    GLubyte isDrawn = 0;
    gl.glReadPixels(m_pixel.x(), m_pixel.y(), 1, 1, stencilIndex, GL_UNSIGNED_BYTE, &isDrawn);
    gl.glReadPixels(m_pixel.x(), m_pixel.y(), 1, 1, depthComponent, GL_FLOAT, &m_depth);
    m_buffer.release();
    return isDrawn != 0;
}
