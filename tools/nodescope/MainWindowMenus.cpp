// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "MainWindow.h"

#include "Areas.h"
#include "ControlsHelp.h"
#include "FileMenu.h"
#include "NodeHistory.h"
#include "NodeOrigin.h"
#include "SceneDocument.h"
#include "SceneTree.h"
#include "SceneView.h"
#include "SearchLine.h"
#include "ViewActions.h"

#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>

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
    auto *menu = new FileMenu(m_files, this);
    menuBar()->addMenu(menu);
    QAction *quit = menu->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcuts(QKeySequence::Quit);
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
    menu->addSeparator();
    const auto addSearch = [&](const QString &text, QKeySequence::StandardKey key, void (SearchLine::*slot)()) {
        QAction *const action = menu->addAction(text, m_search, slot);
        action->setShortcuts(key);
    };
    addSearch(tr("&Find Node..."), QKeySequence::Find, &SearchLine::activate);
    addSearch(tr("Find &Next"), QKeySequence::FindNext, &SearchLine::goToNext);
    addSearch(tr("Find &Previous"), QKeySequence::FindPrevious, &SearchLine::goToPrevious);
    menu->addSeparator();
    (new NodeHistory(m_tree))->addTo(*menu);
}

void MainWindow::createViewMenu()
{
    m_viewMenu = menuBar()->addMenu(tr("&View"));
    if (m_view)
        addViewActions(*m_viewMenu, *m_view, *m_tree);
    (new Areas(m_tree, m_view, m_editors))->addTo(*m_viewMenu);
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
    menu->addAction(tr("&Mouse and Keys..."), this, [this] { showControlsHelp(this); });
    connect(menu->addAction(tr("&About nodescope")), &QAction::triggered, this, &MainWindow::about);
}

void MainWindow::showContextMenu(QTreeWidgetItem *item)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString path = pathText(m_document->root(), m_tree->pathOf(item));
    menu->addAction(tr("&Copy Path %1").arg(path), this, [path] { QGuiApplication::clipboard()->setText(path); });
    SoNode *const node = SceneTree::nodeOf(item);
    for (const NodeOrigin &origin : {NodeOrigin::namedBy(node), NodeOrigin::of(node)}) {
        if (!origin.fileName.isEmpty())
            menu->addAction(tr("&Open %1").arg(origin.name), this, [this, origin] { open(origin.fileName); });
    }
    const QRect row = m_tree->visualItemRect(item);
    const QPoint mouse = m_tree->viewport()->mapFromGlobal(QCursor::pos());
    menu->popup(m_tree->viewport()->mapToGlobal(row.contains(mouse) ? mouse : row.center())); // asked for by key
}

void MainWindow::about()
{
    QMessageBox::about(this, tr("About nodescope"),
                       tr("<b>nodescope %1</b><p>Shows a Coin scene and edits the fields of its nodes.</p>"
                          "<p>The reference tool of HarborAPI.</p>")
                           .arg(QCoreApplication::applicationVersion()));
}
