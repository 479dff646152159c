// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileActions.h"

#include "FileReferences.h"
#include "FileState.h"
#include "MessageBar.h"
#include "RecentFiles.h"
#include "SceneDocument.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>

using FileQuestions::Answer;

namespace
{
constexpr qint64 shortWait = 300; // milliseconds

QString nameOf(const QString &fileName)
{
    return QFileInfo(fileName).fileName();
}

} // namespace

FileActions::FileActions(SceneDocument *document, MessageBar *messages, QWidget *window)
    : QObject(window), m_document(document), m_messages(messages), m_window(window), m_recent(new RecentFiles(this))
{
    m_notice.setSingleShot(true);
    m_notice.setInterval(300); // whoever writes it may do so bit by bit
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_notice, QOverload<>::of(&QTimer::start));
    connect(&m_notice, &QTimer::timeout, this, &FileActions::noticeFile);
}

bool FileActions::open(const QString &fileName)
{
    return mayDiscard() && read(fileName);
}

bool FileActions::read(const QString &fileName)
{
    QStringList messages;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QElapsedTimer sinceBegun;
    sinceBegun.start();
    const auto progress = [&](double part) {
        if (sinceBegun.elapsed() >= shortWait)
            m_messages->showProgress(tr("Reading %1: %2 %").arg(nameOf(fileName)).arg(int(100 * part)));
    };
    const bool opened = m_document->open(fileName, &messages, progress);
    m_messages->endProgress();
    QApplication::restoreOverrideCursor();
    for (const QString &message : std::as_const(messages))
        m_messages->add(message);
    if (!opened && messages.size() > 1)
        m_messages->add(tr("%1 was not opened: %2").arg(nameOf(fileName), messages.first()));
    if (opened && !m_document->fileName().isEmpty())
        m_recent->add(m_document->fileName());
    watchFile();
    return opened;
}

void FileActions::chooseAndOpen()
{
    const QString directory = QFileInfo(m_document->fileName()).path();
    const QString fileName = QFileDialog::getOpenFileName(
        m_window, tr("Open a Scene"), directory, tr("Scenes (*.iv *.wrl *.iv.gz *.wrl.gz *.wrz);;All files (*)"));
    if (!fileName.isEmpty())
        open(fileName);
}

void FileActions::reload()
{
    if (m_document->fileName().isEmpty())
        return;
    Q_EMIT sceneWanted();
    if (m_document->isModified() && FileQuestions::reload(m_window, m_document->title()) != Answer::Reload)
        return;
    Q_EMIT aboutToReload();
    read(m_document->fileName());
    Q_EMIT reloaded();
}

bool FileActions::save()
{
    if (m_document->fileName().isEmpty())
        return saveAs();
    Q_EMIT sceneWanted();
    if (m_document->isModified() || m_document->isFileTouched())
        return saveTo(m_document->fileName());
    m_messages->add(tr("%1 is as it was: there is nothing to save.").arg(m_document->title()));
    return true;
}

bool FileActions::saveAs()
{
    QFileDialog dialog(m_window, tr("Save the Scene"), QFileInfo(m_document->fileName()).path(),
                       tr("Scenes (*.iv *.wrl);;All files (*)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(m_document->suffix());
    if (!m_document->fileName().isEmpty())
        dialog.selectFile(m_document->fileName());
    return dialog.exec() == QDialog::Accepted && saveTo(dialog.selectedFiles().constFirst());
}

bool FileActions::saveTo(const QString &fileName)
{
    Q_EMIT sceneWanted();
    bool wantsBackup = false;
    if (const Answer answer = mayReplace(fileName, &wantsBackup); answer != Answer::Save)
        return instead(answer);
    QString problem;
    if (!write(fileName, wantsBackup, &problem))
        return instead(FileQuestions::notSaved(m_window, problem));
    m_recent->add(m_document->fileName());
    watchFile();
    Q_EMIT saved();
    return true;
}

/// Whether the scene was saved after all.
bool FileActions::instead(Answer answer)
{
    if (answer == Answer::SaveAs)
        return saveAs();
    if (answer == Answer::Reload)
        reload();
    return false;
}

/// Asks where the file is about to lose more than the user changed.
Answer FileActions::mayReplace(const QString &fileName, bool *wantsBackup)
{
    const FileState state(fileName);
    if (!state.isRegular())
        return Answer::Save; // nothing is there to be lost, or it is refused
    const bool isOwn = m_document->isFile(fileName);
    const QString backup = nameOf(FileBackup::of(fileName).fileName);
    if (isOwn && m_document->isFileTouched()) {
        *wantsBackup = true;
        if (const Answer answer = FileQuestions::fileTouched(m_window, nameOf(fileName), backup);
            answer != Answer::Save)
            return answer;
    }
    QStringList warnings;
    const SaveLosses &losses = m_document->losses();
    if (isOwn && losses.any() && !(losses.areMomentary() && FileBackup::anyOf(fileName))) {
        *wantsBackup = true;
        warnings = losses.lines();
    }
    if (state.nameCount() > 1)
        warnings.append(tr("the link to its other names (hard links): these keep the file as it is now"));
    if (warnings.isEmpty())
        return Answer::Save;
    return FileQuestions::beforeReplacing(m_window, nameOf(fileName), warnings, *wantsBackup ? backup : QString());
}

bool FileActions::write(const QString &fileName, bool wantsBackup, QString *problem)
{
    const FileBackup backup = wantsBackup ? FileBackup::of(fileName) : FileBackup();
    if (wantsBackup && !backup.keep(fileName, problem)) {
        *problem
            = tr("%1 was not saved, because as it is now it could not be kept. %2").arg(nameOf(fileName), *problem);
        return false;
    }
    const QString before = m_document->fileName();
    QStringList messages;
    const bool isSaved = m_document->save(fileName, &messages);
    if (!isSaved)
        *problem = messages.takeLast();
    else if (wantsBackup)
        messages.append(tr("Saved %1; as it was it is kept as %2")
                            .arg(QDir::toNativeSeparators(fileName), nameOf(backup.fileName)));
    else
        messages.append(tr("Saved %1").arg(QDir::toNativeSeparators(fileName)));
    if (isSaved && !before.isEmpty() && QFileInfo(before).path() != QFileInfo(m_document->fileName()).path())
        messages.append(movedReferences());
    for (const QString &message : std::as_const(messages))
        m_messages->add(message);
    return isSaved;
}

/// They are written as they were. Empty where there are none.
QStringList FileActions::movedReferences() const
{
    constexpr int mostNames = 5;
    QStringList names = relativeReferences(m_document->root());
    if (names.isEmpty())
        return {};
    const auto count = static_cast<int>(names.size());
    if (count > mostNames)
        names = names.mid(0, mostNames) << QStringLiteral("\u2026");
    return {tr("%n name(s) of other files are now looked up beside %1: %2", nullptr, count)
                .arg(m_document->title(), names.join(QLatin1String(", ")))};
}

bool FileActions::mayDiscard()
{
    Q_EMIT sceneWanted();
    if (!m_document->isModified())
        return true;
    const Answer answer = FileQuestions::unsavedChanges(m_window, m_document->title());
    return answer == Answer::Discard || (answer == Answer::Save && save());
}

void FileActions::watchFile()
{
    const QStringList former = m_watcher.files();
    if (!former.isEmpty())
        m_watcher.removePaths(former);
    if (QFileInfo::exists(m_document->fileName()))
        m_watcher.addPath(m_document->fileName());
}

void FileActions::noticeFile()
{
    if (m_document->fileName().isEmpty())
        return;
    const QString title = m_document->title();
    if (!QFileInfo::exists(m_document->fileName()))
        m_messages->add(tr("Another program has removed %1: File, Save writes it again.").arg(title));
    else if (m_document->isFileTouched())
        m_messages->add(tr("Another program has changed %1: File, Reload shows it as it is now.").arg(title));
    watchFile(); // one that was replaced is no longer watched
}
