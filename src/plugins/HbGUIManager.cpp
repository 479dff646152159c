// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbGUIManager.h>

#include <HbEditors.h>
#include <HbNscPlugins.h>
#include <HbNscPluginsManagerDialog.h>

#include "support/DeletionWatch.h"
#include "support/PathExpansion.h"
#include "support/Preferences.h"
#include "support/SharedLibrary.h"

#include <QApplication>
#include <QFile>

#include <Inventor/errors/SoDebugError.h>

#include <algorithm>
#include <dirent.h>
#include <exception>
#include <memory>
#include <sys/stat.h>
#include <typeinfo>
#include <unistd.h>

const SbString HbGUIManager::DEFAULT_PLUGIN_PATH("$KRNHOME/$KRNARCH/lib");

namespace
{
constexpr const char *source = "HbGUIManager";
constexpr const char *noPluginsKey = "NSC_NO_PLUGINS";
constexpr const char *directoryKey = "NSC_PLUGINS_DIRECTORY";

Preferences::Found<bool> noPlugins()
{
    return Preferences::boolean(noPluginsKey, true);
}

QByteArray bytesOf(const SbString &text)
{
    return QByteArray(text.getString());
}

struct DirectoryEntry {
    QByteArray name;
    bool isDirectory;
};

bool isWritableByOthers(int directory)
{
    struct stat status;
    if (fstat(directory, &status) != 0)
        return false;
    const bool isOthers = status.st_uid != 0 && status.st_uid != geteuid();
    const bool isGroups = status.st_gid != 0 && status.st_gid != getegid();
    return (status.st_mode & S_IWOTH) || (isGroups && (status.st_mode & S_IWGRP))
        || (isOthers && (status.st_mode & S_IWUSR));
}

/// Closed again before any of its directories is entered, so that depth costs no open files.
std::vector<DirectoryEntry> entriesOf(const QByteArray &directory)
{
    std::vector<DirectoryEntry> entries;
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(opendir(directory.constData()), closedir);
    if (stream && isWritableByOthers(dirfd(stream.get())))
        SoDebugError::postWarning(source, "Other users can put plug-ins into '%s'", directory.constData());
    while (const dirent *const entry = stream ? readdir(stream.get()) : nullptr)
        entries.push_back({entry->d_name, entry->d_type == DT_DIR});
    return entries;
}

/// The name of the function @p tail of the library's class as compilers write it.
QByteArray entryPoint(const SbString &path, const char *tail)
{
    QByteArray name = PathExpansion::baseName(bytesOf(path));
    if (name.endsWith(SharedLibrary::suffix))
        name.chop(int(qstrlen(SharedLibrary::suffix)));
    if (name.startsWith("lib"))
        name.remove(0, 3);
    return "_ZN" + QByteArray::number(name.size()) + name + tail;
}

/// Runs a plug-in's own code, from which no exception gets out; returns what it threw, or nothing.
template <class Call> QByteArray callPlugin(const SbString &path, Call call)
{
    QByteArray thrown;
    try {
        call();
        return thrown;
    } catch (const std::exception &error) {
        thrown = QByteArray("an exception: ") + error.what();
    } catch (...) {
        thrown = "an exception";
    }
    SoDebugError::post(source, "Plugin '%s' threw %s", path.getString(), thrown.constData());
    return thrown;
}

/// The widgets whose class is defined in the library.
std::vector<QPointer<QWidget>> widgetsOf(void *library)
{
    std::vector<QPointer<QWidget>> widgets;
    for (QWidget *const widget : QApplication::allWidgets()) {
        if (SharedLibrary::holds(library, &typeid(*widget)))
            widgets.emplace_back(widget);
    }
    return widgets;
}

void withdrawEditors(void *library)
{
    for (const QPointer<QWidget> &widget : widgetsOf(library)) {
        if (auto *const editor = dynamic_cast<HbEditors *>(widget.data())) { // one may take others along as it goes
            editor->unregisterEditor();
            if (widget)
                widget->hide();
        }
    }
}

/// What waits to run code of a library runs while there is still something to run. Calls leave deletions behind and
/// deletions calls, hence the rounds; something that never ends must not keep the tool here.
void flushEvents()
{
    constexpr int rounds = 8;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void release(const SbString &path, void (*releaseInstance)())
{
    void *const library = SharedLibrary::take(bytesOf(path)); // what is called from here on cannot release it again
    flushEvents();
    withdrawEditors(library);
    const bool isReleased = callPlugin(path, releaseInstance).isEmpty();
    flushEvents();
    if (isReleased && widgetsOf(library).empty() && !SharedLibrary::isRunning(library))
        SharedLibrary::close(library);
    else
        SoDebugError::postWarning(source, "Plugin '%s' is still in use: its code stays in memory", path.getString());
}
} // namespace

HbGUIManager::HbGUIManager(HbGUIManagement *tool) : management(tool)
{
    ensureCoinStarted();
    if (QWidget *const startup = tool ? tool->getStartupWidget() : nullptr)
        startup->setVisible(false);
    if (!noPlugins().value)
        loadHbPlugins();
    managerDialog = new HbNscPluginsManagerDialog(management, this); // owned
    for (HbNscPlugins *const plugin : plugins)
        managerDialog->insertPlugin(plugin);
}

HbGUIManager::~HbGUIManager()
{
    for (const QByteArray &path : filesPaths)
        unloadPlugin(path.constData());
    filesPaths.clear();
    delete managerDialog;
}

/// What the preference says is taken as it stands; only the default is expanded.
SbString HbGUIManager::pluginsDirectory()
{
    const QByteArray directory = Preferences::text(directoryKey, bytesOf(DEFAULT_PLUGIN_PATH)).value;
    return (directory == DEFAULT_PLUGIN_PATH.getString() ? PathExpansion::expand(directory) : directory).constData();
}

void HbGUIManager::loadHbPlugins()
{
    pluginsPath = pluginsDirectory(); // empty where the default says nothing: then there is none to open
    buildFilesPaths(pluginsPath);
    const std::vector<QByteArray> found = filesPaths;
    for (const QByteArray &path : found)
        loadPlugin(path.constData());
}

void HbGUIManager::buildFilesPaths(const SbString &directory)
{
    for (const DirectoryEntry &entry : entriesOf(bytesOf(directory))) {
        if (entry.name.startsWith('.'))
            continue;
        const QByteArray path = bytesOf(directory) + '/' + entry.name;
        if (entry.isDirectory)
            buildFilesPaths(path.constData());
        else if (path.contains("Nsc_") && path.contains(".so")) // anywhere in it, so that versioned libraries count
            filesPaths.push_back(path);
    }
}

HbNscPlugins *HbGUIManager::loadPlugin(const SbString &path)
{
    loadError.clear();
    const QByteArray symbol = entryPoint(path, "11getInstanceEP15HbGUIManagement");
    QByteArray reason;
    if (!SharedLibrary::load(bytesOf(path), true, &reason)) {
        loadError = QFile::decodeName(reason);
        SoDebugError::post(source, "Could not load plugin '%s' !", path.getString());
        return nullptr;
    }
    void *const address = SharedLibrary::symbol(bytesOf(path), symbol);
    if (!address) {
        loadError = QStringLiteral("undefined symbol: ") + QString::fromLatin1(symbol);
        SoDebugError::post(source, "Could not locate method '%s'\n  in '%s' !", symbol.constData(), path.getString());
        return nullptr;
    }
    HbNscPlugins *plugin = nullptr;
    const QByteArray thrown = callPlugin(path, [&] {
        plugin = reinterpret_cast<HbNscPlugins *(*)(HbGUIManagement *)>(address)(management);
        if (!plugin)
            SoDebugError::post(source, "Plugin '%s' returned no object", path.getString());
    });
    if (plugin) {
        plugin->setPath(path);
        plugins.push_back(plugin);
    } else {
        loadError = thrown.isEmpty() ? QStringLiteral("getInstance() returned no object")
                                     : QStringLiteral("getInstance() threw ") + QString::fromUtf8(thrown);
    }
    return plugin;
}

void HbGUIManager::unloadPlugin(const SbString &path)
{
    void *const address = SharedLibrary::symbol(bytesOf(path), entryPoint(path, "15releaseInstanceEv"));
    if (address)
        release(path, reinterpret_cast<void (*)()>(address));
    else
        SoError::post("Could not terminate %s !", path.getString());
}

SbString HbGUIManager::getPluginsPath() const
{
    return pluginsPath;
}

QString HbGUIManager::getLoadError() const
{
    return loadError;
}

HbNscPluginsManagerDialog *HbGUIManager::getDialog() const
{
    return managerDialog;
}

bool HbGUIManager::isFound(const QByteArray &path) const
{
    return std::find(filesPaths.begin(), filesPaths.end(), path) != filesPaths.end();
}

std::vector<HbGUIManager::Preference> HbGUIManager::getPreferences()
{
    const auto nameOf = [](Preferences::Origin origin) {
        switch (origin) {
        case Preferences::Origin::Environment:
            return QStringLiteral("environment");
        case Preferences::Origin::File:
            return QStringLiteral("file");
        default:
            return QStringLiteral("default");
        }
    };
    const auto isOff = noPlugins();
    return {{QLatin1String(noPluginsKey), isOff.value ? QStringLiteral("true") : QStringLiteral("false"),
             nameOf(isOff.origin)},
            {QLatin1String(directoryKey), QFile::decodeName(pluginsDirectory().getString()),
             nameOf(Preferences::text(directoryKey, {}).origin)}};
}

QString HbGUIManager::getPreferencesFile()
{
    return Preferences::fileName();
}
