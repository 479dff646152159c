// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneView.h"

#include "CoinRef.h"
#include "ViewRenderAction.h"

#include <Inventor/SoFullPath.h>
#include <Inventor/SoPickedPoint.h>
#include <Inventor/VRMLnodes/SoVRMLLight.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/elements/SoGLCacheContextElement.h>
#include <Inventor/misc/SoContextHandler.h>
#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>

#include <QApplication>
#include <QMouseEvent>
#include <QOpenGLContext>

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{

constexpr float orbitPerPixel = 0.008F;
constexpr float orbitPerKey = 0.12F;
constexpr float panPerKey = 0.05F;
constexpr float zoomPerPixel = 1.005F;
constexpr float zoomPerKey = 1.15F;

QSurfaceFormat surfaceFormat()
{
    QSurfaceFormat format; // Coin draws with the fixed pipeline
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    format.setVersion(2, 1);
    format.setDepthBufferSize(24);
    format.setStencilBufferSize(8);
    format.setSamples(4);
    return format;
}

bool hasLight(SoNode *root)
{
    for (const SoType &type : {SoLight::getClassTypeId(), SoVRMLLight::getClassTypeId()}) {
        SoSearchAction search;
        search.setType(type);
        search.apply(root);
        if (search.getPath())
            return true;
    }
    return false;
}

} // namespace

bool SceneView::isSupported()
{
    QOpenGLContext context;
    context.setFormat(surfaceFormat());
    return context.create();
}

SceneView::SceneView(QWidget *parent)
    : QOpenGLWidget(parent), m_superRoot(coinRef(new SoSeparator)), m_headlight(new SoSwitch),
      m_cameraSensor([](void *self, SoSensor *) { static_cast<SceneView *>(self)->goHome(); }, this),
      m_action(std::make_unique<ViewRenderAction>(SbViewportRegion())), m_manager(std::make_unique<SoRenderManager>())
{
    setFormat(surfaceFormat());
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Picture of the scene"));
    setMinimumSize(160, 120);

    m_superRoot->renderCaching = SoSeparator::OFF;
    m_superRoot->addChild(m_headlight); // before the camera: the light moves with the eye
    m_headlight->addChild(new SoDirectionalLight);
    static_cast<SoDirectionalLight *>(m_headlight->getChild(0))->direction.setValue(0, 0, -1);

    SoRenderManager::enableRealTimeUpdate(FALSE); // the clock ticks in the event loop
    m_manager->setGLRenderAction(m_action.get());
    m_action->setTransparencyType(SoGLRenderAction::SORTED_OBJECT_BLEND);
    m_manager->setAutoClipping(SoRenderManager::NO_AUTO_CLIPPING); // done before each frame
    m_manager->setRenderCallback([](void *self, SoRenderManager *) { static_cast<SceneView *>(self)->update(); }, this);
    m_manager->setSceneGraph(m_superRoot.get());
    m_manager->activate();
    updateBackground();
}

SceneView::~SceneView()
{
    releaseGL();
    if (context())
        context()->disconnect(this); // it outlives what is left of this object
    m_manager->setSceneGraph(nullptr);
}

void SceneView::setScene(SoNode *root)
{
    m_scene = coinRef(root);
    setHeadlight(!hasLight(root));
    goHome();
}

/// Puts the camera and the scene behind the headlight.
void SceneView::useCamera()
{
    SoCamera *camera = m_camera.node();
    while (m_superRoot->getNumChildren() > 1)
        m_superRoot->removeChild(1);
    m_superRoot->addChild(camera);
    m_superRoot->addChild(m_scene.get());
    m_manager->setCamera(camera);
    m_action->setCamera(camera);
    m_cameraSensor.detach();
    if (m_camera.original())
        m_cameraSensor.attach(m_camera.original());
}

void SceneView::viewAll()
{
    m_camera.viewAll(m_scene.get(), viewport());
    m_atHome = false;
}

void SceneView::goHome()
{
    m_camera.goHome(m_scene.get(), viewport());
    useCamera();
    m_atHome = true;
}

void SceneView::setHeadlight(bool on)
{
    m_headlight->whichChild = on ? SO_SWITCH_ALL : SO_SWITCH_NONE;
    Q_EMIT headlightChanged(on);
}

bool SceneView::hasHeadlight() const
{
    return m_headlight->whichChild.getValue() == SO_SWITCH_ALL;
}

void SceneView::initializeGL()
{
    // A window that moves between screens may get a new context; what was cached for the old one is gone.
    m_action->setCacheContext(SoGLCacheContextElement::getUniqueCacheContext());
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &SceneView::releaseGL, Qt::UniqueConnection);
}

void SceneView::releaseGL()
{
    if (!context())
        return;
    makeCurrent();
    SoContextHandler::destructingContext(m_action->getCacheContext());
    doneCurrent();
}

void SceneView::paintGL()
{
    m_manager->setViewportRegion(viewport());
    if (m_scene)
        m_camera.clip(m_scene.get(), viewport());
    m_manager->render();
    Q_EMIT painted();
}

SbViewportRegion SceneView::viewport() const
{
    const QSize pixels = size() * devicePixelRatioF();
    return SbViewportRegion(static_cast<short>(pixels.width()), static_cast<short>(pixels.height()));
}

void SceneView::resizeEvent(QResizeEvent *event)
{
    QOpenGLWidget::resizeEvent(event);
    if (m_scene && m_atHome)
        goHome(); // what fits depends on the shape of the window
}

void SceneView::mousePressEvent(QMouseEvent *event)
{
    m_pressed = m_last = event->pos();
    m_dragging = false;
}

void SceneView::mouseMoveEvent(QMouseEvent *event)
{
    if ((event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance())
        m_dragging = true;
    if (!m_dragging)
        return;
    const QPoint way = event->pos() - std::exchange(m_last, event->pos());
    const float right = static_cast<float>(way.x());
    const float down = static_cast<float>(way.y());
    const float side = static_cast<float>(std::min(width(), height()));
    const bool shift = event->modifiers() & Qt::ShiftModifier;
    if (event->buttons() & Qt::RightButton)
        m_camera.zoom(std::pow(zoomPerPixel, -down));
    else if (shift || event->buttons() & Qt::MiddleButton)
        m_camera.pan(right / side, -down / side);
    else
        m_camera.orbit(-right * orbitPerPixel, down * orbitPerPixel);
    m_atHome = false;
}

void SceneView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_dragging && event->button() == Qt::LeftButton)
        pick(event->pos());
}

void SceneView::wheelEvent(QWheelEvent *event)
{
    constexpr float stepAngle = 120;
    m_camera.zoom(std::pow(zoomPerKey, static_cast<float>(event->angleDelta().y()) / stepAngle));
    m_atHome = false;
    event->accept();
}

void SceneView::keyPressEvent(QKeyEvent *event)
{
    const auto turn = [&](float right, float up) {
        if (event->modifiers() & Qt::ShiftModifier)
            m_camera.pan(right * panPerKey, up * panPerKey);
        else
            m_camera.orbit(right * orbitPerKey, up * orbitPerKey);
    };
    switch (event->key()) {
    case Qt::Key_Left:
        turn(-1, 0);
        break;
    case Qt::Key_Right:
        turn(1, 0);
        break;
    case Qt::Key_Up:
        turn(0, 1);
        break;
    case Qt::Key_Down:
        turn(0, -1);
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        m_camera.zoom(zoomPerKey);
        break;
    case Qt::Key_Minus:
        m_camera.zoom(1 / zoomPerKey);
        break;
    default:
        QOpenGLWidget::keyPressEvent(event);
        return;
    }
    m_atHome = false;
}

void SceneView::changeEvent(QEvent *event)
{
    QOpenGLWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        updateBackground();
}

/// A calm shade beside the window's colour, light or dark as that is.
void SceneView::updateBackground()
{
    const bool dark = palette().color(QPalette::Window).lightness() < 128;
    m_manager->setBackgroundColor(dark ? SbColor4f(0.13F, 0.16F, 0.20F, 1) : SbColor4f(0.80F, 0.86F, 0.92F, 1));
    update();
}

void SceneView::pick(const QPoint &position)
{
    SbViewportRegion region = viewport();
    const SbViewVolume volume = m_camera.node()->getViewVolume(viewport(), region);
    SbVec3f start;
    SbVec3f direction;
    const SbVec2f place(static_cast<float>(position.x()) / static_cast<float>(width()),
                        1 - static_cast<float>(position.y()) / static_cast<float>(height()));
    volume.projectPointToLine(place, start, direction);
    SoRayPickAction action(region);
    action.setRay(start, direction); // in world space, so that the scene's own cameras do not matter
    action.apply(m_scene.get());
    const SoPickedPoint *point = action.getPickedPoint();
    if (!point)
        return;
    const auto *path = static_cast<SoFullPath *>(point->getPath());
    ScenePath indices;
    for (int i = 1; i < path->getLength(); ++i)
        indices.append(path->getIndex(i));
    Q_EMIT picked(indices);
}
