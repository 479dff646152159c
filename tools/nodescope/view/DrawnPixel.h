// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef DRAWNPIXEL_H
#define DRAWNPIXEL_H

#include <QOpenGLFramebufferObject>
#include <QPoint>

class SoGLRenderAction;
class SoPath;

/// Asks OpenGL whether one shape alone, at the end of a path, would colour one pixel, and how far away. In a current
/// context.
class DrawnPixel
{
public:
    /// @p pixel counts from the left and from below.
    DrawnPixel(SoGLRenderAction &action, const QSize &picture, const QPoint &pixel);

    bool isDrawn(SoPath *path);
    /// From 0 at the near plane to 1 at the far one, as isDrawn() found it; 1 for what is see-through.
    float depth() const { return m_depth; }

private:
    SoGLRenderAction &m_action;
    QOpenGLFramebufferObject m_buffer;
    QPoint m_pixel;
    float m_depth = 1;
};

#endif
