// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FILEACTIONS_H
#define FILEACTIONS_H

#include "FileQuestions.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

class MessageBar;
class QWidget;
class RecentFiles;
class SceneDocument;

/// Opening and saving as the user does it: choosing the file, asking before something is lost, telling what went wrong.
class FileActions : public QObject
{
    Q_OBJECT

public:
    /// None is owned; @p window is the parent of dialogs.
    FileActions(SceneDocument *document, MessageBar *messages, QWidget *window);

    SceneDocument *document() const { return m_document; }
    RecentFiles *recent() const { return m_recent; }

    bool open(const QString &fileName);
    void chooseAndOpen();
    /// Reads the file again.
    void reload();
    /// Writes nothing where nothing has changed.
    bool save();
    bool saveAs();
    /// Asks where there is something to lose.
    bool mayDiscard();

Q_SIGNALS:
    /// The scene is wanted whole: what is being typed should be committed.
    void sceneWanted();
    void saved();
    /// Between these two the same file is read again.
    void aboutToReload();
    void reloaded();

private:
    bool read(const QString &fileName);
    bool saveTo(const QString &fileName);
    FileQuestions::Answer mayReplace(const QString &fileName, bool *wantsBackup);
    bool write(const QString &fileName, bool wantsBackup, QString *problem);
    QStringList movedReferences() const;
    bool instead(FileQuestions::Answer answer);
    void watchFile();
    void noticeFile();

    SceneDocument *m_document;
    MessageBar *m_messages;
    QWidget *m_window;
    RecentFiles *m_recent;
    QFileSystemWatcher m_watcher;
    QTimer m_notice;
};

#endif
