// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FILEMENU_H
#define FILEMENU_H

#include <QMenu>

class FileActions;

/// The menu "File". What needs a scene is enabled while one is open.
class FileMenu : public QMenu
{
    Q_OBJECT

public:
    explicit FileMenu(FileActions *files, QWidget *parent = nullptr);

private:
    template <class Action> QAction *add(const QString &text, const QList<QKeySequence> &keys, Action action);
    void listRecent();
    void follow();

    FileActions *m_files;
    QMenu *m_recent;
    QAction *m_reload;
    QAction *m_save;
    QAction *m_saveAs;
};

#endif
