// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "MainWindow.h"

#include "FieldPanel.h"
#include "MessageBar.h"
#include "SceneDocument.h"
#include "SceneTree.h"
#include "SceneView.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>

namespace
{

const QLatin1String geometryKey("geometry");
const QLatin1String stateKey("state");

QString droppedFile(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : HbGUIManagement(parent), m_document(new SceneDocument(this)), m_tree(new SceneTree),
      m_panel(new FieldPanel(m_document->undoStack())), m_messages(new MessageBar), m_coin([this](const QString &text) {
          QMetaObject::invokeMethod(
              this, [this, text] { m_messages->add(text); }, Qt::QueuedConnection);
      })
{
    createCentre();
    createDocks();
    createFileMenu();
    createEditMenu();
    createViewMenu();
    m_toolsMenu = menuBar()->addMenu(tr("&Tools"));
    createHelpMenu();
    statusBar()->addWidget(m_messages, 1);
    setAcceptDrops(true);
    resize(1200, 800);

    connect(m_document, &SceneDocument::opened, this, &MainWindow::showDocument);
    connect(m_document, &SceneDocument::modifiedChanged, this, &MainWindow::setWindowModified);
    connect(m_tree, &SceneTree::nodeSelected, m_panel, &FieldPanel::setNode);
    connect(m_tree, &SceneTree::rightClicked, this, &MainWindow::showContextMenu);
    connect(m_panel, &FieldPanel::message, m_messages, &MessageBar::add);
    showDocument();
}

MainWindow::~MainWindow() = default;

void MainWindow::createCentre()
{
    if (!SceneView::isSupported()) {
        auto *note = new QLabel(tr("This display draws no OpenGL,\nso there is no picture of the scene."), this);
        note->setAlignment(Qt::AlignCenter);
        setCentralWidget(note);
        return;
    }
    m_view = new SceneView(this);
    setCentralWidget(m_view);
    connect(m_view, &SceneView::picked, m_tree, &SceneTree::select);
}

void MainWindow::createDocks()
{
    const auto addDock = [this](Qt::DockWidgetArea area, const QString &title, const char *name, QWidget *widget) {
        auto *dock = new QDockWidget(title, this);
        dock->setObjectName(QLatin1String(name)); // saveState() needs it
        dock->setWidget(widget);
        addDockWidget(area, dock);
        return dock;
    };
    QDockWidget *scene = addDock(Qt::LeftDockWidgetArea, tr("Scene"), "sceneDock", m_tree);
    QDockWidget *fields = addDock(Qt::RightDockWidgetArea, tr("Fields"), "fieldsDock", m_panel);
    m_panel->setAccessibleName(tr("Fields of the selected node"));
    resizeDocks({scene, fields}, {280, 420}, Qt::Horizontal);
}

void MainWindow::createFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    const auto add = [&](const QString &text, QKeySequence::StandardKey key, auto slot) {
        QAction *action = menu->addAction(text);
        action->setShortcuts(key);
        connect(action, &QAction::triggered, this, slot);
    };
    add(tr("&Open..."), QKeySequence::Open, &MainWindow::chooseAndOpen);
    add(tr("&Save"), QKeySequence::Save, &MainWindow::save);
    add(tr("Save &As..."), QKeySequence::SaveAs, &MainWindow::saveAs);
    menu->addSeparator();
    add(tr("&Quit"), QKeySequence::Quit, &MainWindow::close);
}

void MainWindow::createEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    QAction *undo = m_document->undoStack()->createUndoAction(this, tr("&Undo"));
    undo->setShortcuts(QKeySequence::Undo);
    undo->setObjectName(QStringLiteral("undo"));
    QAction *redo = m_document->undoStack()->createRedoAction(this, tr("&Redo"));
    redo->setShortcuts(QKeySequence::Redo);
    redo->setObjectName(QStringLiteral("redo"));
    menu->addActions({undo, redo});
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
    const auto docks = findChildren<QDockWidget *>();
    for (const QDockWidget *dock : docks)
        m_viewMenu->addAction(dock->toggleViewAction());
}

void MainWindow::createHelpMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    connect(menu->addAction(tr("&About nodescope")), &QAction::triggered, this, &MainWindow::about);
}

bool MainWindow::open(const QString &fileName)
{
    if (!mayDiscard())
        return false;
    QStringList messages;
    const bool opened = m_document->open(fileName, &messages);
    for (const QString &message : messages)
        m_messages->add(message);
    if (!opened && messages.size() > 1)
        m_messages->add(tr("%1 was not opened: %2").arg(QFileInfo(fileName).fileName(), messages.first()));
    return opened;
}

bool MainWindow::select(const QString &path, QString *problem)
{
    const ScenePath found = findPath(m_document->root(), path, problem);
    if (!found.isEmpty())
        m_tree->select(found);
    return !found.isEmpty();
}

void MainWindow::rememberGeometry()
{
    const QSettings settings;
    restoreGeometry(settings.value(geometryKey).toByteArray());
    restoreState(settings.value(stateKey).toByteArray());
    m_remembersGeometry = true;
}

QWidget *MainWindow::getSceneWidget()
{
    return m_tree;
}

QWidget *MainWindow::getEditorsWidget()
{
    return m_panel;
}

QMenu *MainWindow::getPluginsMenu()
{
    return m_toolsMenu;
}

QStringList MainWindow::messages() const
{
    return m_messages->messages();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!mayDiscard()) {
        event->ignore();
        return;
    }
    if (m_remembersGeometry) {
        QSettings settings;
        settings.setValue(geometryKey, saveGeometry());
        settings.setValue(stateKey, saveState());
    }
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    open(droppedFile(event->mimeData()));
}

void MainWindow::chooseAndOpen()
{
    const QString directory = QFileInfo(m_document->fileName()).path();
    const QString fileName = QFileDialog::getOpenFileName(
        this, tr("Open a Scene"), directory, tr("Scenes (*.iv *.wrl *.iv.gz *.wrl.gz *.wrz);;All files (*)"));
    if (!fileName.isEmpty())
        open(fileName);
}

bool MainWindow::save()
{
    return m_document->fileName().isEmpty() ? saveAs() : saveTo(m_document->fileName());
}

bool MainWindow::saveAs()
{
    const QString fileName = QFileDialog::getSaveFileName(this, tr("Save the Scene"), m_document->fileName(),
                                                          tr("Scenes (*.iv *.wrl);;All files (*)"));
    return !fileName.isEmpty() && saveTo(fileName);
}

bool MainWindow::saveTo(const QString &fileName)
{
    finishEditing();
    QStringList messages;
    const bool saved = m_document->save(fileName, &messages);
    if (saved)
        messages.append(tr("Saved %1").arg(QDir::toNativeSeparators(fileName)));
    for (const QString &message : messages)
        m_messages->add(message);
    showTitle();
    return saved;
}

/// Asks where there is something to lose.
bool MainWindow::mayDiscard()
{
    finishEditing();
    if (!m_document->isModified())
        return true;
    const auto answer = QMessageBox::warning(this, tr("Unsaved Changes"), tr("Save the changes to this scene?"),
                                             QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

/// What was typed but not committed counts: an editor commits when it loses the focus.
void MainWindow::finishEditing()
{
    QWidget *editor = focusWidget();
    if (!editor || !m_panel->isAncestorOf(editor))
        return;
    editor->clearFocus();
    editor->setFocus();
}

void MainWindow::showDocument()
{
    m_tree->setScene(m_document->root());
    if (m_view)
        m_view->setScene(m_document->root());
    showTitle();
}

void MainWindow::showTitle()
{
    const QString name = QFileInfo(m_document->fileName()).fileName();
    setWindowTitle(tr("%1[*] - nodescope").arg(name.isEmpty() ? tr("No scene") : name));
    setWindowFilePath(m_document->fileName());
    setWindowModified(m_document->isModified());
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
