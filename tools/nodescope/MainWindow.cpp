// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "MainWindow.h"

#include "FieldPanel.h"
#include "FileActions.h"
#include "MessageBar.h"
#include "NodeEditor.h"
#include "PluginField.h"
#include "SceneDocument.h"
#include "SceneTree.h"
#include "SceneView.h"

#include <HbFieldEditors.h>
#include <HbGUIManager.h>

#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/nodes/SoNode.h>

#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QSplitter>
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
      m_editors(new QSplitter(Qt::Vertical)), m_nodeEditor(new NodeEditor),
      m_panel(new FieldPanel(m_document->undoStack())), m_messages(new MessageBar),
      m_files(new FileActions(m_document, m_messages, this))
{
    m_coin.emplace([this](const QString &text) {
        QMetaObject::invokeMethod(
            this, [this, text] { m_messages->add(text); }, Qt::QueuedConnection);
    });
    createCentre();
    createDocks();
    createMenus();
    statusBar()->addWidget(m_messages, 1);
    setAcceptDrops(true);
    resize(1200, 800);

    connect(m_document, &SceneDocument::opened, this, &MainWindow::showDocument);
    connect(m_document, &SceneDocument::modifiedChanged, this, &MainWindow::setWindowModified);
    connect(m_files, &FileActions::sceneWanted, this, &MainWindow::finishEditing);
    connect(m_files, &FileActions::saved, this, &MainWindow::showTitle);
    connect(m_tree, &SceneTree::nodeSelected, this, &MainWindow::showSelection);
    connect(m_tree, &SceneTree::rightClicked, this, &MainWindow::showContextMenu);
    connect(m_nodeEditor, &NodeEditor::message, m_messages, &MessageBar::add);
    connect(m_panel, &FieldPanel::message, m_messages, &MessageBar::add);
    m_plugins = std::make_unique<HbGUIManager>(this);
    showDocument();
}

MainWindow::~MainWindow()
{
    m_coin.reset(); // from here on nobody reads the message bar: the terminal hears what goes wrong
    m_nodeEditor->setNode(nullptr);
    m_plugins.reset();
}

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
    QDockWidget *fields = addDock(Qt::RightDockWidgetArea, tr("Fields"), "fieldsDock", m_editors);
    m_editors->addWidget(m_nodeEditor);
    m_editors->addWidget(m_panel);
    m_editors->setStretchFactor(1, 1);
    m_editors->setChildrenCollapsible(false);
    m_panel->setAccessibleName(tr("Fields of the selected node"));
    resizeDocks({scene, fields}, {280, 420}, Qt::Horizontal);
}

bool MainWindow::open(const QString &fileName)
{
    return m_files->open(fileName);
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
    return m_editors;
}

QMenu *MainWindow::getPluginsMenu()
{
    return m_toolsMenu;
}

SoNode *MainWindow::getNode(QTreeWidgetItem *item)
{
    return SceneTree::nodeOf(item);
}

HbFieldEditors *MainWindow::createFieldEditor(SoField *field, const FieldEditorFactory &create)
{
    SoFieldContainer *const owner = field ? field->getContainer() : nullptr;
    if (!owner || !owner->isOfType(SoNode::getClassTypeId())) // no step of the undo stack could keep it alive
        return HbGUIManagement::createFieldEditor(field, create);
    const FieldRow::Made made = FieldRow::make(*field, m_document->undoStack(), create);
    if (made.editor) {
        auto *const row = new PluginField(*static_cast<SoNode *>(owner), *field, made); // owned by the editor
        connect(row, &PluginField::message, m_messages, &MessageBar::add);
    }
    return made.editor;
}

void MainWindow::pluginsChanged()
{
    m_nodeEditor->setNode(m_tree->selectedNode());
}

QStringList MainWindow::messages() const
{
    return m_messages->messages();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_files->mayDiscard()) {
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

/// What was typed but not committed counts: an editor commits when it loses the focus.
void MainWindow::finishEditing()
{
    const auto fields = findChildren<PluginField *>();
    for (PluginField *field : fields)
        field->finish();
    m_panel->finish();
    QWidget *editor = focusWidget();
    if (!editor || !m_editors->isAncestorOf(editor))
        return;
    editor->clearFocus();
    editor->setFocus();
}

/// A plug-in's editor may select another node when it is asked for, so the tree is asked each time. It comes first, so
/// that Tab comes to it first.
void MainWindow::showSelection()
{
    m_nodeEditor->setNode(m_tree->selectedNode());
    m_panel->setNode(m_tree->selectedNode());
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
