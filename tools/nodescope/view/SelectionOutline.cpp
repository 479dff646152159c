// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SelectionOutline.h"

#include <Inventor/SoPath.h>
#include <Inventor/actions/SoGLRenderAction.h>

#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>

namespace
{

constexpr char cornerShader[] = "attribute vec2 corner;"
                                "void main() { gl_Position = vec4(corner, 0.0, 1.0); }";

constexpr char fillShader[] = "void main() { gl_FragColor = vec4(1.0); }";

// Looks for the mask in sixteen directions, at the line's width and at half of it.
constexpr char lineShader[] = "uniform sampler2D mask;"
                              "uniform vec2 pixel;"
                              "uniform float width;"
                              "uniform vec4 colour;"
                              "void main() {"
                              "    vec2 here = gl_FragCoord.xy;"
                              "    float near = 0.0;"
                              "    for (int i = 0; i < 16; ++i) {"
                              "        float angle = 0.3926991 * float(i);"
                              "        vec2 way = width * vec2(cos(angle), sin(angle));"
                              "        near = max(near, texture2D(mask, (here + way) * pixel).r);"
                              "        near = max(near, texture2D(mask, (here + 0.5 * way) * pixel).r);"
                              "    }"
                              "    near *= 1.0 - texture2D(mask, here * pixel).r;"
                              "    gl_FragColor = vec4(colour.rgb, near);"
                              "}";

constexpr GLenum alphaTest = 0x0BC0; // of the fixed pipeline, which Qt's headers leave out

std::unique_ptr<QOpenGLShaderProgram> makeProgram(const char *fragmentShader)
{
    auto program = std::make_unique<QOpenGLShaderProgram>();
    program->addShaderFromSourceCode(QOpenGLShader::Vertex, cornerShader);
    program->addShaderFromSourceCode(QOpenGLShader::Fragment, fragmentShader);
    program->bindAttributeLocation("corner", 0);
    program->link();
    return program;
}

void coverPicture(QOpenGLShaderProgram &program, QOpenGLFunctions &gl)
{
    static constexpr GLfloat corners[] = {-1, -1, 1, -1, -1, 1, 1, 1};
    for (const GLenum setting : {static_cast<GLenum>(GL_DEPTH_TEST), static_cast<GLenum>(GL_CULL_FACE), alphaTest})
        gl.glDisable(setting);
    program.bind();
    program.enableAttributeArray(0);
    program.setAttributeArray(0, corners, 2);
    gl.glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    program.disableAttributeArray(0);
    program.release();
    gl.glEnable(GL_DEPTH_TEST);
}

} // namespace

SelectionOutline::SelectionOutline() = default;
SelectionOutline::~SelectionOutline() = default;

void SelectionOutline::releaseGL()
{
    m_mask.reset();
    m_fill.reset();
    m_line.reset();
}

void SelectionOutline::draw(SoGLRenderAction &action, SoPath *path, const QSize &picture, const QColor &colour,
                            float width)
{
    QOpenGLContext *context = QOpenGLContext::currentContext();
    QOpenGLFunctions &gl = *context->functions();
    prepare(picture);
    drawMask(action, path);

    gl.glBindFramebuffer(GL_FRAMEBUFFER, context->defaultFramebufferObject());
    gl.glViewport(0, 0, picture.width(), picture.height());
    gl.glActiveTexture(GL_TEXTURE0);
    gl.glBindTexture(GL_TEXTURE_2D, m_mask->texture());
    gl.glEnable(GL_BLEND);
    gl.glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ZERO, GL_ONE);
    m_line->bind();
    m_line->setUniformValue("mask", 0);
    m_line->setUniformValue("pixel", 1 / static_cast<float>(picture.width()), 1 / static_cast<float>(picture.height()));
    m_line->setUniformValue("width", width);
    m_line->setUniformValue("colour", colour);
    coverPicture(*m_line, gl);
    gl.glDisable(GL_BLEND);
    gl.glBindTexture(GL_TEXTURE_2D, 0);
}

void SelectionOutline::prepare(const QSize &picture)
{
    if (!m_line) {
        m_fill = makeProgram(fillShader);
        m_line = makeProgram(lineShader);
    }
    if (!m_mask || m_mask->size() != picture)
        m_mask = std::make_unique<QOpenGLFramebufferObject>(picture, QOpenGLFramebufferObject::CombinedDepthStencil);
}

/// By the stencil, as a shape may be black, or see-through.
void SelectionOutline::drawMask(SoGLRenderAction &action, SoPath *path)
{
    QOpenGLFunctions &gl = *QOpenGLContext::currentContext()->functions();
    m_mask->bind();
    gl.glClearColor(0, 0, 0, 0);
    gl.glClearStencil(0);
    gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    gl.glEnable(GL_STENCIL_TEST);
    gl.glStencilFunc(GL_ALWAYS, 1, 1);
    gl.glStencilOp(GL_REPLACE, GL_REPLACE, GL_REPLACE);
    gl.glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    action.apply(path);
    gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    gl.glStencilFunc(GL_EQUAL, 1, 1);
    gl.glStencilOp(GL_KEEP, GL_KEEP, GL_KEEP);
    gl.glDisable(GL_BLEND);
    coverPicture(*m_fill, gl);
    gl.glDisable(GL_STENCIL_TEST);
}
