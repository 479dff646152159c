// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBNSCPLUGINSMANAGERDIALOG_H
#define HBNSCPLUGINSMANAGERDIALOG_H

#include <HbGUIManagement.h>

#include <QByteArrayList>
#include <QObject>
#include <QPointer>

class HbGUIManager;
class HbNscPlugins;
class QTreeWidget;
class TranslatedTexts;

/**
 * Lists the loaded plug-ins in a window of its own, and loads and removes them there.
 *
 * The window is opened by the entry "Plug-ins" in the menu that the tool offers (HbGUIManagement::getPluginsMenu()).
 * Window and entry go with this object.
 */
class HARBORAPI_EXPORT HbNscPluginsManagerDialog : public QObject
{
    Q_OBJECT

public:
    /// Neither is owned. Without @p management there is no menu entry; without @p manager nothing is loaded or removed.
    HbNscPluginsManagerDialog(HbGUIManagement *management, HbGUIManager *manager);
    ~HbNscPluginsManagerDialog() override;

    /// Adds a row with the texts of @p plugin, read as Latin-1; a hidden column keeps the library's path.
    void insertPlugin(HbNscPlugins *plugin);
    /// Adds a row for a library that is not loaded, with the reason. "Remove" takes no more than the row away.
    void insertFailedPlugin(const QByteArray &path, const QString &reason);
    /// The libraries of the rows from top to bottom.
    QByteArrayList getPaths() const;
    /// The window; it has no parent unless the tool gives it one, and is deleted by this object. Null once it is gone.
    QWidget *getWindow() const;

public Q_SLOTS:
    /// Lets the user choose a library and loads it.
    void addPlugin();
    /// Shows the window; one that is visible stays where it is.
    void raiseDialog();
    /// Unloads the selected plug-in and takes its row away.
    void removePlugin();

protected Q_SLOTS:
    void hideDialog();

private:
    void buildDialog();
    void addMenuEntry(TranslatedTexts &texts);
    void addRow(const QStringList &texts, bool isLoaded);
    void repaintTool();

    QPointer<HbGUIManagement> management;
    HbGUIManager *manager;
    QPointer<QWidget> frame; ///< a top-level QFrame, of which no more than this is left when its end is heard of
    QPointer<QTreeWidget> pluginsTree; ///< child of the frame
};

#endif
