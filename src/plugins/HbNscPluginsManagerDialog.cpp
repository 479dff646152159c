// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbNscPluginsManagerDialog.h>

#include <HbGUIManager.h>
#include <HbNscPlugins.h>

#include "support/PathExpansion.h"
#include "support/TranslatedTexts.h"

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QFrame>
#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace
{
enum Column { Name, Description, Help, Version, Path, ColumnCount };
constexpr int isLoadedRole = Qt::UserRole;
} // namespace

HbNscPluginsManagerDialog::HbNscPluginsManagerDialog(HbGUIManagement *tool, HbGUIManager *pluginManager)
    : management(tool), manager(pluginManager)
{
    buildDialog();
}

HbNscPluginsManagerDialog::~HbNscPluginsManagerDialog()
{
    delete frame;
}

void HbNscPluginsManagerDialog::addMenuEntry(TranslatedTexts &texts)
{
    QMenu *const menu = management ? management->getPluginsMenu() : nullptr;
    if (!menu)
        return;
    auto *const separator = new QAction(this); // as children of this object both leave the menu with it
    separator->setSeparator(true);
    auto *const entry = new QAction(this);
    texts.set(entry, "text", [] { return tr("Plug-ins"); });
    connect(entry, &QAction::triggered, this, &HbNscPluginsManagerDialog::raiseDialog);
    menu->addActions({separator, entry});
}

void HbNscPluginsManagerDialog::buildDialog()
{
    frame = new QFrame; // deleted by the destructor
    frame->setObjectName(QStringLiteral("HbNscPluginsManagerDialog"));
    auto *const texts = new TranslatedTexts(frame);
    texts->set(frame, "windowTitle", [] { return tr("Plug-ins Management"); });
    addMenuEntry(*texts);
    frame->resize(640, 480);
    frame->setAttribute(Qt::WA_QuitOnClose, false); // the tool ends with its main window

    const auto addButton = [&](const char *name, auto text, auto toolTip, auto slot) {
        auto *const button = new QPushButton(frame);
        button->setObjectName(QLatin1String(name));
        texts->set(button, "text", text);
        texts->set(button, "toolTip", toolTip);
        connect(button, &QPushButton::clicked, this, slot);
        return button;
    };
    auto *const add = addButton(
        "addButton", [] { return tr("Add"); }, [] { return tr("Loads a plug-in and start it."); },
        &HbNscPluginsManagerDialog::addPlugin);
    auto *const remove = addButton(
        "removeButton", [] { return tr("Remove"); }, [] { return tr("Unloads a plug-in."); },
        &HbNscPluginsManagerDialog::removePlugin);

    pluginsTree = new QTreeWidget(frame);
    pluginsTree->setObjectName(QStringLiteral("pluginsTree"));
    texts->set(pluginsTree, "accessibleName", [] { return tr("Plug-ins"); });
    pluginsTree->setColumnCount(ColumnCount);
    texts->call([this] {
        if (pluginsTree)
            pluginsTree->setHeaderLabels({tr("Name"), tr("Description"), tr("Help"), tr("Version"), tr("Path")});
    });
    pluginsTree->setColumnHidden(Path, true);
    pluginsTree->setUniformRowHeights(true);
    pluginsTree->setRootIsDecorated(false);
    for (const Column column : {Description, Help})
        pluginsTree->setColumnWidth(column, 200);

    auto *const layout = new QVBoxLayout(frame);
    layout->setObjectName(QStringLiteral("layout"));
    layout->addWidget(pluginsTree);
    auto *const buttons = new QHBoxLayout;
    buttons->setObjectName(QStringLiteral("buttonLayout"));
    buttons->addWidget(add);
    buttons->addWidget(remove);
    layout->addLayout(buttons);
    QWidget::setTabOrder(pluginsTree, add);
    QWidget::setTabOrder(add, remove);
    pluginsTree->setFocus();
    connect(frame, &QObject::destroyed, this, &HbNscPluginsManagerDialog::hideDialog);
}

void HbNscPluginsManagerDialog::insertPlugin(HbNscPlugins *plugin)
{
    if (!plugin || !pluginsTree)
        return;
    const auto textOf = [plugin](auto getter) {
        try {
            return QString::fromLatin1((plugin->*getter)().getString());
        } catch (...) { // a plug-in that cannot tell its name is listed all the same
            return QString();
        }
    };
    const QStringList texts{textOf(&HbNscPlugins::getName), textOf(&HbNscPlugins::getDescription),
                            textOf(&HbNscPlugins::getHelp), textOf(&HbNscPlugins::getVersion),
                            textOf(&HbNscPlugins::getPath)};
    addRow(texts, true);
}

void HbNscPluginsManagerDialog::insertFailedPlugin(const QByteArray &path, const QString &reason)
{
    const QString name = QFile::decodeName(PathExpansion::baseName(path));
    if (pluginsTree)
        addRow({name, reason, QString(), QString(), QString::fromLatin1(path)}, false);
}

void HbNscPluginsManagerDialog::addRow(const QStringList &texts, bool isLoaded)
{
    auto *const row = new QTreeWidgetItem(pluginsTree, texts); // owned by the tree
    row->setData(Path, isLoadedRole, isLoaded);
    for (const Column column : {Description, Help}) // long, as a rule
        row->setToolTip(column, row->text(column));
    pluginsTree->resizeColumnToContents(Name);
}

void HbNscPluginsManagerDialog::addPlugin()
{
    if (!manager)
        return;
    const QString filter = tr("Nodescope plug-ins (") + QLatin1String("*.so") + QLatin1Char(')');
    const QPointer<HbNscPluginsManagerDialog> self(this);
    const QString fileName = QFileDialog::getOpenFileName(
        nullptr, tr("Load Nodescope Plug-in"), QFile::decodeName(manager->getPluginsPath().getString()), filter);
    if (!self || fileName.isEmpty())
        return;
    HbNscPlugins *const plugin = manager->loadPlugin(QFile::encodeName(fileName).constData());
    insertPlugin(plugin);
    if (plugin && management)
        management->pluginsChanged();
}

void HbNscPluginsManagerDialog::removePlugin()
{
    const QTreeWidgetItem *const current = pluginsTree ? pluginsTree->currentItem() : nullptr;
    if (!manager || !current || !current->isSelected()) // the keyboard may stand in a row without selecting it
        return;
    const QPointer<HbNscPluginsManagerDialog> self(this);
    const QPersistentModelIndex row(pluginsTree->currentIndex());
    if (current->data(Path, isLoadedRole).toBool())
        manager->unloadPlugin(current->text(Path).toLatin1().constData());
    if (!self)
        return;
    if (row.isValid() && pluginsTree)
        pluginsTree->model()->removeRow(row.row());
    if (management)
        management->pluginsChanged();
    repaintTool();
}

QByteArrayList HbNscPluginsManagerDialog::getPaths() const
{
    QByteArrayList paths;
    for (int row = 0; pluginsTree && row < pluginsTree->topLevelItemCount(); ++row)
        paths << pluginsTree->topLevelItem(row)->text(Path).toLatin1();
    return paths;
}

QWidget *HbNscPluginsManagerDialog::getWindow() const
{
    return frame;
}

/// Whatever the plug-in showed disappears at once.
void HbNscPluginsManagerDialog::repaintTool()
{
    QWidgetList widgets{pluginsTree};
    if (management)
        widgets << management << management->menuWidget() << management->getSceneWidget()
                << management->getEditorsWidget();
    for (QWidget *const widget : std::as_const(widgets)) {
        if (widget)
            widget->repaint();
    }
}

void HbNscPluginsManagerDialog::raiseDialog()
{
    if (frame && !frame->isVisible())
        frame->show();
}

void HbNscPluginsManagerDialog::hideDialog()
{
    auto *const window = qobject_cast<QFrame *>(frame.data()); // no longer one when it is its end that is heard of
    if (window && window->isVisible())
        window->hide();
}
