// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEVIEW_H
#define SCENEVIEW_H

#include "ScenePath.h"
#include "ViewCamera.h"

#include <Inventor/SoRenderManager.h>
#include <Inventor/sensors/SoNodeSensor.h>

#include <QOpenGLWidget>

class SoSeparator;
class SoSwitch;
class ViewRenderAction;

/**
 * A scene in three dimensions.
 *
 * The scene stands beside the view's own camera and headlight, not above them: neither is ever part of what
 * is saved. Drawn again only when something that shows has changed.
 *
 * Left button: orbit; middle button, or left with Shift: pan; right button or wheel: zoom; a click picks.
 * Arrow keys orbit, with Shift they pan; + and - zoom.
 */
class SceneView : public QOpenGLWidget
{
    Q_OBJECT

public:
    /// Whether this machine can draw OpenGL in a window.
    static bool isSupported();

    explicit SceneView(QWidget *parent = nullptr);
    ~SceneView() override;

    void setScene(SoNode *root);

    void viewAll();
    void goHome();
    void setHeadlight(bool on);
    bool hasHeadlight() const;

Q_SIGNALS:
    /// A frame was drawn.
    void painted();
    /// The user clicked at the node there.
    void picked(const ScenePath &path);
    void headlightChanged(bool on);

protected:
    void initializeGL() override;
    void paintGL() override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void useCamera();
    void updateBackground();
    void releaseGL();
    SbViewportRegion viewport() const;
    void pick(const QPoint &position);

    std::shared_ptr<SoSeparator> m_superRoot; ///< headlight, camera, scene
    SoSwitch *m_headlight;
    std::shared_ptr<SoNode> m_scene;
    ViewCamera m_camera;
    SoNodeSensor m_cameraSensor; ///< on the scene's own camera: what is edited there shows
    std::unique_ptr<ViewRenderAction> m_action;
    std::unique_ptr<SoRenderManager> m_manager;
    bool m_atHome = true; ///< not moved since
    QPoint m_pressed;
    QPoint m_last;
    bool m_dragging = false;
};

#endif
