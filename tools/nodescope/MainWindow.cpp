// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "MainWindow.h"

#include "FieldPanel.h"
#include "FileActions.h"
#include "KeptPlace.h"
#include "MessageBar.h"
#include "NodeEditor.h"
#include "NodeOrigin.h"
#include "PluginField.h"
#include "PluginsDialog.h"
#include "RecentFiles.h"
#include "SceneDocument.h"
#include "SceneTree.h"
#include "SceneView.h"
#include "SearchLine.h"
#include "StartScreen.h"
#include "ViewRoom.h"

#include <HbFieldEditors.h>
#include <HbGUIManager.h>

#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/nodes/SoNode.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QVBoxLayout>

namespace
{

const QLatin1String geometryKey("geometry");
const QLatin1String stateKey("state");

/// How much larger texts are than where the sizes of the window were chosen.
double fontScale()
{
    constexpr double usualSize = 12; // pixels
    return QFontInfo(QApplication::font()).pixelSize() / usualSize;
}

QString droppedFile(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : HbGUIManagement(parent), m_document(new SceneDocument(this)), m_tree(new SceneTree),
      m_search(new SearchLine(m_tree)), m_editors(new QSplitter(Qt::Vertical)), m_nodeEditor(new NodeEditor),
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
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    resize((QSize(1200, 800) * fontScale())
               .boundedTo(screen()->availableSize() - QSize(title, 2 * title))); // with its frame

    connect(m_document, &SceneDocument::opened, this, &MainWindow::showDocument);
    connect(m_document, &SceneDocument::modifiedChanged, this, &MainWindow::setWindowModified);
    connect(m_files, &FileActions::sceneWanted, this, &MainWindow::finishEditing);
    connect(m_files, &FileActions::saved, this, &MainWindow::showTitle);
    connect(m_tree, &SceneTree::nodeSelected, m_messages, &MessageBar::outdate);
    connect(m_document->undoStack(), &QUndoStack::indexChanged, m_messages, &MessageBar::outdate);
    connect(m_tree, &SceneTree::nodeSelected, this, &MainWindow::showSelection);
    connect(m_tree, &SceneTree::rightClicked, this, &MainWindow::showContextMenu);
    connect(m_nodeEditor, &NodeEditor::message, m_messages, &MessageBar::add);
    connect(m_panel, &FieldPanel::message, m_messages, &MessageBar::add);
    connect(m_panel, &FieldPanel::nodeWanted, this, &MainWindow::goTo);
    connect(m_panel, &FieldPanel::fileWanted, this, &MainWindow::open, Qt::QueuedConnection);
    new KeptPlace(m_files, m_tree, m_view, this);
    m_plugins = std::make_unique<HbGUIManager>(this);
    m_pluginsDialog = new PluginsDialog(*m_plugins, this);
    connect(m_pluginsDialog, &PluginsDialog::message, m_messages, &MessageBar::add,
            Qt::QueuedConnection); // after what Coin has to say of it
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
    m_centre = new QStackedWidget(this);
    m_centre->addWidget(new StartScreen(m_files));
    setCentralWidget(m_centre);
    if (!SceneView::isSupported()) {
        auto *note = new QLabel(tr("This display draws no OpenGL,\nso there is no picture of the scene."), this);
        note->setAlignment(Qt::AlignCenter);
        m_centre->addWidget(note);
        return;
    }
    m_view = new SceneView(this);
    m_centre->addWidget(m_view);
    connect(m_view, &SceneView::picked, m_tree, &SceneTree::select);
    connect(m_view, &SceneView::painted, m_tree, &SceneTree::showUndrawn);
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
    auto *const searched = new QWidget;
    auto *const column = new QVBoxLayout(searched);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_search);
    column->addWidget(m_tree, 1);
    QDockWidget *scene = addDock(Qt::LeftDockWidgetArea, tr("Scene"), "sceneDock", searched);
    QDockWidget *fields = addDock(Qt::RightDockWidgetArea, tr("Fields"), "fieldsDock", m_editors);
    m_editors->addWidget(m_nodeEditor);
    m_editors->addWidget(m_panel);
    m_editors->setStretchFactor(1, 1);
    m_editors->setChildrenCollapsible(false);
    m_panel->setAccessibleName(tr("Fields of the selected node"));
    searched->setMinimumWidth(14 * fontMetrics().averageCharWidth());
    m_panel->setMinimumWidth(36 * fontMetrics().averageCharWidth());
    m_room = new ViewRoom(
        *this, {{scene->objectName(), qRound(280 * fontScale())}, {fields->objectName(), qRound(420 * fontScale())}});
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

void MainWindow::rememberFiles()
{
    m_files->recent()->remember();
}

void MainWindow::rememberGeometry()
{
    const QSettings settings;
    m_room->restore();
    restoreGeometry(settings.value(geometryKey).toByteArray());
    restoreState(settings.value(stateKey).toByteArray());
    m_remembersGeometry = true;
}

void MainWindow::rememberPlugins()
{
    m_pluginsDialog->remember();
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
        connect(row, &PluginField::nodeWanted, this, &MainWindow::goTo);
    }
    return made.editor;
}

void MainWindow::pluginsChanged()
{
    m_nodeEditor->setNode(m_tree->selectedNode());
    m_pluginsDialog->keepChoice();
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
        m_room->save();
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
    m_nodeEditor->setEnabled(NodeOrigin::of(m_tree->selectedNode()).kind == NodeOrigin::Scene);
    m_panel->setNode(m_tree->selectedNode());
    if (m_view)
        m_view->setSelected(m_tree->pathOf(m_tree->currentItem()));
}

void MainWindow::goTo(SoNode *node)
{
    if (m_tree->selectNode(node))
        m_tree->setFocus(Qt::OtherFocusReason);
    else
        m_messages->add(tr("The node does not stand in the tree of this scene."));
}

void MainWindow::showDocument()
{
    if (m_document->fileName() != windowFilePath())
        m_search->clear();
    m_tree->setScene(m_document->root());
    if (m_view)
        m_view->setScene(m_document->root());
    m_centre->setCurrentIndex(m_document->isOpen() ? 1 : 0);
    showTitle();
}

void MainWindow::showTitle()
{
    setWindowTitle(tr("%1[*] - nodescope").arg(m_document->title()));
    setWindowFilePath(m_document->fileName());
    setWindowModified(m_document->isModified());
}
