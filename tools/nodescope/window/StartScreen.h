// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef STARTSCREEN_H
#define STARTSCREEN_H

#include <QWidget>

class FileActions;
class QVBoxLayout;

/// Stands in the place of the scene while there is none, and says what can be done.
class StartScreen : public QWidget
{
    Q_OBJECT

public:
    explicit StartScreen(FileActions *files, QWidget *parent = nullptr);

private:
    void list();
    void addHeading(const QString &text);
    void addFile(const QString &fileName, const QString &where);

    FileActions *m_files;
    QVBoxLayout *m_column;
    QWidget *m_lists = nullptr;
};

#endif
