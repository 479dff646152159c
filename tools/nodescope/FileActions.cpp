// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileActions.h"

#include "MessageBar.h"
#include "SceneDocument.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>

FileActions::FileActions(SceneDocument *document, MessageBar *messages, QWidget *window)
    : QObject(window), m_document(document), m_messages(messages), m_window(window)
{
}

bool FileActions::open(const QString &fileName)
{
    if (!mayDiscard())
        return false;
    QStringList messages;
    const bool opened = m_document->open(fileName, &messages);
    for (const QString &message : std::as_const(messages))
        m_messages->add(message);
    if (!opened && messages.size() > 1)
        m_messages->add(tr("%1 was not opened: %2").arg(QFileInfo(fileName).fileName(), messages.first()));
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

bool FileActions::save()
{
    return m_document->fileName().isEmpty() ? saveAs() : saveTo(m_document->fileName());
}

bool FileActions::saveAs()
{
    const QString fileName = QFileDialog::getSaveFileName(m_window, tr("Save the Scene"), m_document->fileName(),
                                                          tr("Scenes (*.iv *.wrl);;All files (*)"));
    return !fileName.isEmpty() && saveTo(fileName);
}

bool FileActions::saveTo(const QString &fileName)
{
    Q_EMIT sceneWanted();
    QStringList messages;
    const bool isSaved = m_document->save(fileName, &messages);
    if (isSaved)
        messages.append(tr("Saved %1").arg(QDir::toNativeSeparators(fileName)));
    for (const QString &message : std::as_const(messages))
        m_messages->add(message);
    Q_EMIT saved();
    return isSaved;
}

bool FileActions::mayDiscard()
{
    Q_EMIT sceneWanted();
    if (!m_document->isModified())
        return true;
    const auto answer = QMessageBox::warning(m_window, tr("Unsaved Changes"), tr("Save the changes to this scene?"),
                                             QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}
