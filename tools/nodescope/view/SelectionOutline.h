// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SELECTIONOUTLINE_H
#define SELECTIONOUTLINE_H

#include <QColor>
#include <QSize>

#include <memory>

class QOpenGLFramebufferObject;
class QOpenGLShaderProgram;
class SoGLRenderAction;
class SoPath;

/**
 * Draws a line around the shapes at the end of a path, over the finished picture. What stands in front of them does not
 * hide it. The scene is not touched.
 */
class SelectionOutline
{
public:
    SelectionOutline();
    ~SelectionOutline();

    /// In a current context, with the framebuffer of the picture bound; @p width in pixels.
    void draw(SoGLRenderAction &action, SoPath *path, const QSize &picture, const QColor &colour, float width);
    /// In the context that it was drawn in, before that ends.
    void releaseGL();

private:
    void prepare(const QSize &picture);
    void drawMask(SoGLRenderAction &action, SoPath *path);

    std::unique_ptr<QOpenGLFramebufferObject> m_mask; ///< white where the shapes would be, were they alone
    std::unique_ptr<QOpenGLShaderProgram> m_fill;
    std::unique_ptr<QOpenGLShaderProgram> m_line;
};

#endif
