// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PluginsDialog.h"

#include <HbGUIManager.h>
#include <HbNscPluginsManagerDialog.h>

#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QShortcut>

namespace
{
const QLatin1String chosenKey("plugins/chosen");
/// One that is being loaded. Whoever is still in this list at the next start ended the tool.
const QLatin1String loadingKey("plugins/loading");

/// Whether the preferences say so; by default the library alone looks for none.
bool areUnwanted()
{
    const auto preferences = HbGUIManager::getPreferences();
    const HbGUIManager::Preference &none = preferences.front();
    return none.origin != QLatin1String("default") && none.value == QLatin1String("true");
}
} // namespace

PluginsDialog::PluginsDialog(HbGUIManager &manager, HbGUIManagement *tool)
    : QObject(tool), m_manager(manager), m_tool(tool), m_dialog(manager.getDialog()), m_window(m_dialog->getWindow())
{
    const QSize size = m_window->size();
    m_window->setParent(tool, Qt::Dialog);
    m_window->resize(size);
    m_window->installEventFilter(this);
    auto *escape = new QShortcut(Qt::Key_Escape, m_window);
    connect(escape, &QShortcut::activated, m_window, &QWidget::close);
    auto *addButton = m_window->findChild<QPushButton *>(QStringLiteral("addButton"));
    addButton->disconnect(m_dialog);
    connect(addButton, &QPushButton::clicked, this, &PluginsDialog::add);
}

void PluginsDialog::remember()
{
    if (areUnwanted())
        return;
    const QStringList chosen = QSettings().value(chosenKey).toStringList();
    for (const QString &fileName : chosen)
        loadAgain(fileName);
    m_remembers = true;
}

void PluginsDialog::loadAgain(const QString &fileName)
{
    QSettings settings;
    QStringList loading = settings.value(loadingKey).toStringList();
    QString problem;
    if (m_manager.isFound(QFile::encodeName(fileName)))
        return;
    if (loading.contains(fileName)) {
        problem = tr("nodescope ended while it loaded this plug-in the last time");
    } else {
        settings.setValue(loadingKey, loading + QStringList(fileName));
        settings.sync();
        if (!load(fileName))
            problem = m_manager.getLoadError();
        settings.setValue(loadingKey, loading);
    }
    if (problem.isEmpty())
        return;
    m_dialog->insertFailedPlugin(QFile::encodeName(fileName), problem);
    Q_EMIT message(
        tr("The plug-in %1 was not loaded: %2. Tools > Plug-ins removes it, or adds it again.").arg(fileName, problem));
}

bool PluginsDialog::load(const QString &fileName)
{
    HbNscPlugins *const plugin = m_manager.loadPlugin(QFile::encodeName(fileName).constData());
    m_dialog->insertPlugin(plugin);
    return plugin;
}

void PluginsDialog::keepChoice()
{
    if (!m_remembers)
        return;
    QSettings settings;
    QStringList chosen;
    const QByteArrayList paths = m_dialog->getPaths();
    for (const QByteArray &path : paths)
        if (!m_manager.isFound(path))
            chosen << QFile::decodeName(path);
    chosen.removeDuplicates();
    QStringList loading = settings.value(loadingKey).toStringList();
    loading.erase(std::remove_if(loading.begin(), loading.end(),
                                 [&](const QString &fileName) { return !chosen.contains(fileName); }),
                  loading.end());
    settings.setValue(chosenKey, chosen);
    settings.setValue(loadingKey, loading);
}

void PluginsDialog::add()
{
    const QString fileName = QFileDialog::getOpenFileName(m_window, tr("Load Nodescope Plug-in"),
                                                          QFile::decodeName(m_manager.getPluginsPath().getString()),
                                                          tr("Nodescope plug-ins (%1)").arg(QLatin1String("*.so")));
    if (fileName.isEmpty())
        return;
    if (load(fileName)) {
        QSettings settings;
        QStringList loading = settings.value(loadingKey).toStringList();
        loading.removeAll(fileName); // it did not end the tool this time
        settings.setValue(loadingKey, loading);
        m_tool->pluginsChanged();
        return;
    }
    QMessageBox::warning(m_window, tr("Plug-in Not Loaded"),
                         tr("The plug-in %1 could not be loaded:\n\n%2").arg(fileName, m_manager.getLoadError()));
}

void PluginsDialog::centre()
{
    QRect place(QPoint(), m_window->size());
    place.moveCenter(m_tool->frameGeometry().center());
    const QRect screen = m_tool->screen()->availableGeometry();
    place.moveLeft(qMax(screen.left(), qMin(place.left(), screen.right() - place.width())));
    place.moveTop(qMax(screen.top(), qMin(place.top(), screen.bottom() - place.height())));
    m_window->move(place.topLeft());
}

bool PluginsDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Show && !event->spontaneous())
        centre();
    return QObject::eventFilter(watched, event);
}
