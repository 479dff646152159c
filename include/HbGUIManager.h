// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBGUIMANAGER_H
#define HBGUIMANAGER_H

#include <HbGUIManagement.h>

#include <QByteArray>
#include <QPointer>

#include <Inventor/SbString.h>

#include <vector>

class HbNscPlugins;
class HbNscPluginsManagerDialog;

/**
 * Finds the tool's plug-in libraries, loads them, and releases them again.
 *
 * A plug-in library holds one class that is named after the file without "lib" and ".so", with two static functions:
 * getInstance(HbGUIManagement *), which returns the plug-in object, and releaseInstance(), which disposes of it.
 *
 * Two preferences, read from the environment or else from the preferences file:
 * NSC_NO_PLUGINS, true unless it is set to false, keeps the manager from looking for plug-ins by itself;
 * NSC_PLUGINS_DIRECTORY is where it looks, "$KRNHOME/$KRNARCH/lib" unless it is set; nowhere where one of these two
 * variables is not set.
 *
 * Failures are told on Coin's error channels and stop nothing. For the GUI thread.
 */
class HARBORAPI_EXPORT HbGUIManager
{
public:
    /// Hides the tool's start-up widget, loads the plug-ins if it may, and makes the management dialog.
    /// @p management is given to every plug-in; it is not owned, and may be null.
    explicit HbGUIManager(HbGUIManagement *management);
    /// Releases the plug-ins that the directory scan found; one that was loaded by hand stays.
    ~HbGUIManager();

    HbGUIManager(const HbGUIManager &) = delete;
    HbGUIManager &operator=(const HbGUIManager &) = delete;

    /// Looks for plug-ins where the preference says and loads each of them. The dialog does not hear of them.
    void loadHbPlugins();

    /**
     * Notes every file below @p directory whose full path contains "Nsc_" and ".so", for loadHbPlugins() and the
     * destructor.
     *
     * What starts with a dot is passed over. Linked directories are not entered. A directory that cannot be read
     * counts as empty. One that other users can write is searched with a warning.
     */
    void buildFilesPaths(const SbString &directory);

    /// Loads a library and returns its plug-in object, which stays the library's; null on failure.
    /// A library that is loaded is asked again for its object.
    HbNscPlugins *loadPlugin(const SbString &path);

    /// Has the library at @p path, as it was given to loadPlugin(), dispose of its object, and unloads it. The editors
    /// of its classes leave the registry and the screen first; pointers into the library are void from then on.
    void unloadPlugin(const SbString &path);

    /// Where plug-ins were looked for; empty if they were not.
    SbString getPluginsPath() const;

    /// Why the last loadPlugin() failed, in the words of the dynamic linker where it refused the library; empty when it
    /// did not fail.
    QString getLoadError() const;
    /// The dialog, which is the manager's own.
    HbNscPluginsManagerDialog *getDialog() const;
    /// Whether the directory scan found the library.
    bool isFound(const QByteArray &path) const;

    /// A preference in effect.
    struct Preference {
        QString key;
        QString value;
        QString origin; ///< "environment", "file" or "default"
    };
    /// The preferences as a manager made now would read them.
    static std::vector<Preference> getPreferences();
    /// The file that preferences are read from, whether or not it exists.
    static QString getPreferencesFile();

private:
    static SbString pluginsDirectory();

    QPointer<HbGUIManagement> management;
    HbNscPluginsManagerDialog *managerDialog = nullptr;
    SbString pluginsPath;
    QString loadError;
    std::vector<QByteArray> filesPaths;
    std::vector<HbNscPlugins *> plugins; ///< in load order; an entry outlives its plug-in, so only new ones are used

    static const SbString DEFAULT_PLUGIN_PATH;
};

#endif
