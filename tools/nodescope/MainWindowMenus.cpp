// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "MainWindow.h"

#include "FileActions.h"
#include "SceneDocument.h"
#include "SceneTree.h"
#include "SceneView.h"

#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QMenuBar>
#include <QMessageBox>

void MainWindow::createMenus()
{
    createFileMenu();
    createEditMenu();
    createViewMenu();
    m_toolsMenu = menuBar()->addMenu(tr("&Tools"));
    createHelpMenu();
}

void MainWindow::createFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    const auto add = [&](const QString &text, QKeySequence::StandardKey key, auto *receiver, auto slot) {
        QAction *action = menu->addAction(text);
        action->setShortcuts(key);
        connect(action, &QAction::triggered, receiver, slot);
    };
    add(tr("&Open..."), QKeySequence::Open, m_files, &FileActions::chooseAndOpen);
    add(tr("&Save"), QKeySequence::Save, m_files, &FileActions::save);
    add(tr("Save &As..."), QKeySequence::SaveAs, m_files, &FileActions::saveAs);
    menu->addSeparator();
    add(tr("&Quit"), QKeySequence::Quit, static_cast<QWidget *>(this), &QWidget::close);
}

void MainWindow::createEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    QUndoStack *stack = m_document->undoStack();
    const auto add = [&](QAction *action, const char *name, QKeySequence::StandardKey key, void (QUndoStack::*move)()) {
        action->setShortcuts(key);
        action->setObjectName(QLatin1String(name));
        action->disconnect(stack);
        connect(action, &QAction::triggered, this, [this, stack, move] {
            finishEditing(); // a text that is being typed is a step too, the last one
            (stack->*move)();
        });
        menu->addAction(action);
    };
    add(stack->createUndoAction(this, tr("&Undo")), "undo", QKeySequence::Undo, &QUndoStack::undo);
    add(stack->createRedoAction(this, tr("&Redo")), "redo", QKeySequence::Redo, &QUndoStack::redo);
}

void MainWindow::createViewMenu()
{
    m_viewMenu = menuBar()->addMenu(tr("&View"));
    if (m_view) {
        m_viewMenu->addAction(tr("View &All"), m_view, &SceneView::viewAll)->setShortcut(tr("Ctrl+0"));
        m_viewMenu->addAction(tr("&Home"), m_view, &SceneView::goHome)->setShortcut(tr("Ctrl+Home"));
        QAction *headlight = m_viewMenu->addAction(tr("Head&light"));
        headlight->setCheckable(true);
        connect(headlight, &QAction::triggered, m_view, &SceneView::setHeadlight);
        connect(m_view, &SceneView::headlightChanged, headlight, &QAction::setChecked);
        m_viewMenu->addSeparator();
    }
    connect(m_viewMenu, &QMenu::aboutToShow, this, &MainWindow::listDocks);
}

/// Those of plug-ins come and go.
void MainWindow::listDocks()
{
    const auto docks = findChildren<QDockWidget *>();
    for (const QDockWidget *dock : docks)
        m_viewMenu->addAction(dock->toggleViewAction()); // one that is there already moves to the end
}

void MainWindow::createHelpMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    connect(menu->addAction(tr("&About nodescope")), &QAction::triggered, this, &MainWindow::about);
}

void MainWindow::showContextMenu(QTreeWidgetItem *item)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString path = pathText(m_document->root(), m_tree->pathOf(item));
    menu->addAction(tr("&Copy Path %1").arg(path), this, [path] { QGuiApplication::clipboard()->setText(path); });
    menu->popup(QCursor::pos());
}

void MainWindow::about()
{
    QMessageBox::about(this, tr("About nodescope"),
                       tr("<b>nodescope %1</b><p>Shows a Coin scene and edits the fields of its nodes.</p>"
                          "<p>The reference tool of HarborAPI.</p>")
                           .arg(QCoreApplication::applicationVersion()));
}
