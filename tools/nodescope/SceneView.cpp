// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneView.h"

#include "CoinRef.h"
#include "ShapeGuard.h"
#include "ViewRenderAction.h"

#include <Inventor/SbLine.h>
#include <Inventor/SbPlane.h>
#include <Inventor/VRMLnodes/SoVRMLLight.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/elements/SoGLCacheContextElement.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/misc/SoContextHandler.h>
#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>

#include <QApplication>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{

constexpr float orbitPerPixel = 0.008F;
constexpr float zoomPerPixel = 1.005F;
constexpr float zoomPerStep = 1.15F;

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
    ShapeGuard::forget();
    m_scene = coinRef(root);
    m_selected.reset();
    m_shown = false;
    setHeadlight(!hasLight(root));
    goHome();
}

void SceneView::setSelected(const ScenePath &indices)
{
    m_selected.reset();
    if (!indices.isEmpty()) {
        m_selected = coinRef(new SoPath(m_superRoot.get()));
        m_selected->append(m_superRoot->getNumChildren() - 1);
        const SoNode *parent = m_scene.get();
        for (const int index : indices) {
            const SoChildList *const children = parent->getChildren();
            if (!children || index >= children->getLength())
                break; // only a field holds that node: its owner stands for it
            m_selected->append(index);
            parent = (*children)[index];
        }
    }
    update();
}

/// Puts the camera and the scene behind the headlight.
void SceneView::useCamera()
{
    SoCamera *camera = m_camera.node();
    if (m_superRoot->getNumChildren() == 1) {
        m_superRoot->addChild(camera);
        m_superRoot->addChild(m_scene.get());
    }
    m_superRoot->replaceChild(1, camera);
    if (m_superRoot->getChild(2) != m_scene.get())
        m_superRoot->replaceChild(2, m_scene.get()); // a path through it ends there
    m_manager->setCamera(camera);
    m_action->setCamera(camera);
    m_cameraSensor.detach();
    if (m_camera.original())
        m_cameraSensor.attach(m_camera.original());
}

void SceneView::viewAll()
{
    m_camera.viewAll(m_scene.get(), viewport());
}

void SceneView::frameSelected()
{
    if (m_selected)
        m_camera.frame(*m_selected, viewport());
    else
        viewAll();
}

void SceneView::goHome()
{
    m_camera.goHome(m_scene.get(), viewport());
    useCamera();
}

void SceneView::orbit(float right, float up)
{
    m_camera.orbit(right, up);
}

void SceneView::pan(float right, float up)
{
    m_camera.pan(right, up);
}

void SceneView::zoom(float factor)
{
    m_camera.zoom(factor, m_camera.focus());
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
    m_outline.releaseGL();
    SoContextHandler::destructingContext(m_action->getCacheContext());
    doneCurrent();
}

void SceneView::paintGL()
{
    m_manager->setViewportRegion(viewport());
    if (m_scene)
        m_camera.clip(m_scene.get(), viewport());
    context()->functions()->glEnable(GL_DEPTH_TEST); // Coin takes it for granted
    m_manager->render();
    if (m_selected)
        drawOutline();
    makeOpaque();
    m_shown = true;
    Q_EMIT painted();
}

/// What is see-through lets the scene shine through, not what the window has behind the view.
void SceneView::makeOpaque()
{
    QOpenGLFunctions &gl = *context()->functions();
    gl.glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_TRUE);
    gl.glClearColor(0, 0, 0, 1);
    gl.glClear(GL_COLOR_BUFFER_BIT);
    gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
}

void SceneView::drawOutline()
{
    const float width = static_cast<float>(fontMetrics().height() * devicePixelRatioF() / 7);
    const QColor colour = palette().color(QPalette::Active, QPalette::Highlight);
    m_outline.draw(*m_action, m_selected.get(), size() * devicePixelRatioF(), colour, width);
}

SbViewportRegion SceneView::viewport() const
{
    const QSize pixels = size() * devicePixelRatioF();
    return SbViewportRegion(static_cast<short>(pixels.width()), static_cast<short>(pixels.height()));
}

void SceneView::resizeEvent(QResizeEvent *event)
{
    QOpenGLWidget::resizeEvent(event);
    if (m_scene && !m_shown)
        goHome(); // what fits depends on the shape of the window; what is seen stays
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
        zoom(std::pow(zoomPerPixel, -down));
    else if (shift || event->buttons() & Qt::MiddleButton)
        pan(right / side, -down / side);
    else
        orbit(-right * orbitPerPixel, down * orbitPerPixel);
}

void SceneView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_dragging && event->button() == Qt::LeftButton)
        pick(event->pos());
}

void SceneView::wheelEvent(QWheelEvent *event)
{
    constexpr float stepAngle = 120;
    const QPoint mouse = event->position().toPoint();
    if (!m_zoomPoint || m_last != mouse)
        m_zoomPoint = pointAt(mouse);
    m_last = mouse;
    m_camera.zoom(std::pow(zoomPerStep, static_cast<float>(event->angleDelta().y()) / stepAngle), *m_zoomPoint);
    event->accept();
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

/// The middle of a pixel, counted from 0 to 1 from the left and from below.
SbVec2f SceneView::placeOf(const QPoint &position) const
{
    return SbVec2f((static_cast<float>(position.x()) + 0.5F) / static_cast<float>(width()),
                   1 - (static_cast<float>(position.y()) + 0.5F) / static_cast<float>(height()));
}

/// Where the line of sight through a pixel meets the scene, or else the plane looked at.
SbVec3f SceneView::pointAt(const QPoint &position)
{
    if (const std::optional<ScenePicker::Hit> hit = hitAt(position))
        return hit->point;
    SbViewportRegion region;
    const SbViewVolume volume = m_camera.node()->getViewVolume(viewport(), region);
    SbLine sight;
    volume.projectPointToLine(placeOf(position), sight);
    SbVec3f point;
    SbPlane(m_camera.direction(), m_camera.focus()).intersect(sight, point);
    return point;
}

std::optional<ScenePicker::Hit> SceneView::hitAt(const QPoint &position)
{
    makeCurrent();
    m_manager->setViewportRegion(viewport());
    m_camera.clip(m_scene.get(), viewport());
    ScenePicker picker(m_superRoot.get(), m_camera.node(), *m_action);
    const double reach = QApplication::startDragDistance() / 2 * devicePixelRatioF();
    const std::optional<ScenePicker::Hit> hit = picker.hitAt(placeOf(position), static_cast<float>(reach));
    doneCurrent();
    return hit;
}

void SceneView::pick(const QPoint &position)
{
    const std::optional<ScenePicker::Hit> hit = hitAt(position);
    Q_EMIT picked(hit ? hit->path : ScenePath());
}
