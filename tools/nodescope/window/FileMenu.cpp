// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileMenu.h"

#include "FileActions.h"
#include "RecentFiles.h"
#include "SceneDocument.h"

#include <QDir>
#include <QFileInfo>

FileMenu::FileMenu(FileActions *files, QWidget *parent) : QMenu(tr("&File"), parent), m_files(files)
{
    const auto keys = [](QKeySequence::StandardKey key) { return QKeySequence::keyBindings(key); };
    add(tr("&Open..."), keys(QKeySequence::Open), &FileActions::chooseAndOpen);
    m_recent = addMenu(tr("Open &Recent"));
    m_recent->setToolTipsVisible(true);
    m_reload = add(tr("Re&load"), {QKeySequence(Qt::Key_F5)}, &FileActions::reload);
    addSeparator();
    m_save = add(tr("&Save"), keys(QKeySequence::Save), &FileActions::save);
    m_saveAs = add(tr("Save &As..."), keys(QKeySequence::SaveAs), &FileActions::saveAs);
    addSeparator();
    connect(files->recent(), &RecentFiles::changed, this, &FileMenu::listRecent);
    connect(files->document(), &SceneDocument::opened, this, &FileMenu::follow);
    connect(files, &FileActions::saved, this, &FileMenu::follow);
    connect(this, &QMenu::aboutToShow, this, &FileMenu::listRecent); // files come and go
    listRecent();
    follow();
}

template <class Action> QAction *FileMenu::add(const QString &text, const QList<QKeySequence> &keys, Action action)
{
    QAction *const entry = addAction(text);
    entry->setShortcuts(keys);
    connect(entry, &QAction::triggered, m_files, action);
    return entry;
}

void FileMenu::listRecent()
{
    m_recent->clear();
    const QStringList files = m_files->recent()->files();
    int number = 0;
    for (const QString &file : files) {
        const QString name = QFileInfo(file).fileName().replace(QLatin1Char('&'), QLatin1String("&&"));
        const QString text = ++number < 10 ? tr("&%1 %2").arg(number).arg(name) : name;
        QAction *const entry = m_recent->addAction(text);
        connect(
            entry, &QAction::triggered, m_files, [this, file] { m_files->open(file); },
            Qt::QueuedConnection); // the list is made anew meanwhile
        entry->setToolTip(QDir::toNativeSeparators(file));
    }
    m_recent->addSeparator();
    m_recent->addAction(tr("&Clear This List"), m_files->recent(), &RecentFiles::clear);
    m_recent->setEnabled(!files.isEmpty());
}

void FileMenu::follow()
{
    const SceneDocument *const document = m_files->document();
    m_reload->setEnabled(!document->fileName().isEmpty());
    m_save->setEnabled(document->isOpen());
    m_saveAs->setEnabled(document->isOpen());
}
