// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEVIEW_H
#define SCENEVIEW_H

#include "ScenePath.h"
#include "ScenePicker.h"
#include "SelectionOutline.h"
#include "ViewCamera.h"

#include <Inventor/SoRenderManager.h>
#include <Inventor/sensors/SoNodeSensor.h>

#include <QOpenGLWidget>

#include <optional>

class SoSeparator;
class SoSwitch;
class ViewRenderAction;

/**
 * A scene in three dimensions.
 *
 * The scene stands beside the view's own camera and headlight, not above them: neither is ever part of what
 * is saved. Drawn again only when something that shows has changed. Another size of the view does not move the camera.
 *
 * Left button: orbit; middle button, or left with Shift: pan; right button: zoom; wheel: zoom to the mouse; a click
 * picks. The keys are those of addViewActions().
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

    /// The node whose shapes are outlined; an empty path outlines none.
    void setSelected(const ScenePath &path);

    void viewAll();
    void frameSelected();
    void goHome();
    /// Turns around the point looked at, by angles in radians.
    void orbit(float right, float up);
    /// Moves the picture by fractions of its shorter side.
    void pan(float right, float up);
    /// Makes everything larger by @p factor.
    void zoom(float factor);
    const ViewCamera &camera() const { return m_camera; }
    void setHeadlight(bool on);
    bool hasHeadlight() const;

Q_SIGNALS:
    /// A frame was drawn.
    void painted();
    /// The user clicked at the node there; empty: at nothing.
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
    void changeEvent(QEvent *event) override;

private:
    void useCamera();
    void updateBackground();
    void releaseGL();
    SbViewportRegion viewport() const;
    std::optional<ScenePicker::Hit> hitAt(const QPoint &position);
    void pick(const QPoint &position);
    void makeOpaque();
    void drawOutline();
    SbVec2f placeOf(const QPoint &position) const;
    SbVec3f pointAt(const QPoint &position);

    std::shared_ptr<SoSeparator> m_superRoot; ///< headlight, camera, scene
    SoSwitch *m_headlight;
    std::shared_ptr<SoNode> m_scene;
    ViewCamera m_camera;
    SoNodeSensor m_cameraSensor; ///< on the scene's own camera: what is edited there shows
    std::unique_ptr<ViewRenderAction> m_action;
    std::unique_ptr<SoRenderManager> m_manager;
    std::shared_ptr<SoPath> m_selected; ///< from the super root on
    SelectionOutline m_outline;
    bool m_shown = false; ///< since the scene is another
    std::optional<SbVec3f> m_zoomPoint; ///< under the mouse, until that moves
    QPoint m_pressed;
    QPoint m_last;
    bool m_dragging = false;
};

#endif
