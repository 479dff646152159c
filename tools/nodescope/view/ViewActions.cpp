// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ViewActions.h"

#include "SceneView.h"

#include <QAction>
#include <QMenu>

namespace
{

constexpr float orbitPerKey = 0.12F;
constexpr float panPerKey = 0.05F;
constexpr float zoomPerKey = 1.15F;

struct Step {
    const char *text;
    QList<QKeySequence> keys;
    void (SceneView::*move)(float right, float up);
    float right;
    float up;
};

QAction *addForView(QMenu &menu, SceneView &view, const QString &text, const QList<QKeySequence> &keys)
{
    QAction *action = menu.addAction(text);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    view.addAction(action);
    return action;
}

void addSteps(QMenu &menu, SceneView &view, const QList<Step> &steps)
{
    for (const Step &step : steps) {
        const QAction *action = addForView(menu, view, SceneView::tr(step.text), step.keys);
        QObject::connect(action, &QAction::triggered, &view, [&view, step] { (view.*step.move)(step.right, step.up); });
    }
}

void addZoom(QMenu &menu, SceneView &view, const QString &text, const QList<QKeySequence> &keys, float factor)
{
    const QAction *action = addForView(menu, view, text, keys);
    QObject::connect(action, &QAction::triggered, &view, [&view, factor] { view.zoom(factor); });
}

} // namespace

void addViewActions(QMenu &menu, SceneView &view, QWidget &tree)
{
    QAction *frame = addForView(menu, view, SceneView::tr("&Frame Selected"), {Qt::Key_F});
    tree.addAction(frame);
    QObject::connect(frame, &QAction::triggered, &view, &SceneView::frameSelected);
    QAction *all = menu.addAction(SceneView::tr("View &All"), &view, &SceneView::viewAll);
    all->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    QAction *home = menu.addAction(SceneView::tr("&Home"), &view, &SceneView::goHome);
    home->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Home));
    menu.addSeparator();

    addZoom(menu, view, SceneView::tr("Zoom &In"), {Qt::Key_Plus, Qt::Key_Equal}, zoomPerKey);
    addZoom(menu, view, SceneView::tr("Zoom &Out"), {Qt::Key_Minus}, 1 / zoomPerKey);
    addSteps(*menu.addMenu(SceneView::tr("&Turn")), view,
             {{QT_TRANSLATE_NOOP("SceneView", "Turn Left"), {Qt::Key_Left}, &SceneView::orbit, -orbitPerKey, 0},
              {QT_TRANSLATE_NOOP("SceneView", "Turn Right"), {Qt::Key_Right}, &SceneView::orbit, orbitPerKey, 0},
              {QT_TRANSLATE_NOOP("SceneView", "Turn Up"), {Qt::Key_Up}, &SceneView::orbit, 0, orbitPerKey},
              {QT_TRANSLATE_NOOP("SceneView", "Turn Down"), {Qt::Key_Down}, &SceneView::orbit, 0, -orbitPerKey}});
    addSteps(
        *menu.addMenu(SceneView::tr("&Move")), view,
        {{QT_TRANSLATE_NOOP("SceneView", "Move Left"), {Qt::SHIFT | Qt::Key_Left}, &SceneView::pan, -panPerKey, 0},
         {QT_TRANSLATE_NOOP("SceneView", "Move Right"), {Qt::SHIFT | Qt::Key_Right}, &SceneView::pan, panPerKey, 0},
         {QT_TRANSLATE_NOOP("SceneView", "Move Up"), {Qt::SHIFT | Qt::Key_Up}, &SceneView::pan, 0, panPerKey},
         {QT_TRANSLATE_NOOP("SceneView", "Move Down"), {Qt::SHIFT | Qt::Key_Down}, &SceneView::pan, 0, -panPerKey}});
    menu.addSeparator();

    QAction *headlight = menu.addAction(SceneView::tr("Head&light"));
    headlight->setCheckable(true);
    QObject::connect(headlight, &QAction::triggered, &view, &SceneView::setHeadlight);
    QObject::connect(&view, &SceneView::headlightChanged, headlight, &QAction::setChecked);
    menu.addSeparator();
}
