// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FILEACTIONS_H
#define FILEACTIONS_H

#include <QObject>

class MessageBar;
class QWidget;
class SceneDocument;

/// Opening and saving as the user does it: choosing the file, asking before something is lost, telling what went wrong.
class FileActions : public QObject
{
    Q_OBJECT

public:
    /// None is owned; @p window is the parent of dialogs.
    FileActions(SceneDocument *document, MessageBar *messages, QWidget *window);

    bool open(const QString &fileName);
    void chooseAndOpen();
    bool save();
    bool saveAs();
    /// Asks where there is something to lose.
    bool mayDiscard();

Q_SIGNALS:
    /// The scene is wanted whole: what is being typed should be committed.
    void sceneWanted();
    void saved();

private:
    bool saveTo(const QString &fileName);

    SceneDocument *m_document;
    MessageBar *m_messages;
    QWidget *m_window;
};

#endif
