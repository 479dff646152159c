// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneDocument.h"

#include "CoinEventLoop.h"
#include "CoinRef.h"

#include <QFileInfo>

#include <utility>

SceneDocument::SceneDocument(QObject *parent) : QObject(parent)
{
    m_file.root = coinRef<SoSeparator>(new SceneRoot);
    m_watch.watch(root());
    connect(&m_undoStack, &QUndoStack::cleanChanged, this, [this] { Q_EMIT modifiedChanged(isModified()); });
    connect(&m_undoStack, &QUndoStack::indexChanged, this, [this] { m_undoMoved = true; });
    connect(&m_watch, &SceneWatch::changedElsewhere, this, [this] {
        if (!m_undoMoved)
            setChangedElsewhere(true);
    });
    connect(&m_watch, &SceneWatch::changed, this, [this] {
        m_undoMoved = false;
        CoinEventLoop::updateClock();
    });
}

bool SceneDocument::open(const QString &fileName, QStringList *messages, const ReadingProgress &progress)
{
    const bool isPiped = fileName == standardInput;
    const FileState state = isPiped ? FileState() : FileState(fileName); // from before, so that no change escapes
    SceneFile file = readScene(fileName, progress);
    *messages = file.messages;
    if (!file.root)
        return false;
    m_undoStack.clear();
    std::swap(m_file, file); // the old scene lives until everyone has turned to the new one
    m_fileName = isPiped ? QString() : QFileInfo(fileName).absoluteFilePath();
    m_fileState = state;
    m_isOpen = true;
    m_watch.watch(root());
    m_undoMoved = false;
    setChangedElsewhere(false);
    Q_EMIT opened();
    file.root.reset();
    CoinEventLoop::updateClock(); // nobody listens for the old scene any more
    return true;
}

bool SceneDocument::save(const QString &fileName, QStringList *messages)
{
    if (!writeScene(root(), m_file.format, fileName, messages))
        return false;
    const QFileInfo now(fileName);
    if (m_fileName.isEmpty() || now.absolutePath() != QFileInfo(m_fileName).absolutePath())
        m_file.directory = std::make_shared<SceneDirectory>(fileName);
    m_fileName = now.absoluteFilePath();
    m_fileState = FileState(m_fileName);
    m_isOpen = true;
    m_file.losses = {};
    m_undoStack.setClean();
    setChangedElsewhere(false);
    return true;
}

bool SceneDocument::isModified() const
{
    return m_changedElsewhere || !m_undoStack.isClean();
}

QString SceneDocument::title() const
{
    if (!m_isOpen)
        return tr("No scene");
    return m_fileName.isEmpty() ? tr("Standard input") : QFileInfo(m_fileName).fileName();
}

QString SceneDocument::suffix() const
{
    const QString plain = m_file.format.header.isEmpty() ? QStringLiteral("iv") : QStringLiteral("wrl");
    return m_file.format.gzip ? plain + QStringLiteral(".gz") : plain;
}

bool SceneDocument::isFileTouched() const
{
    return !m_fileName.isEmpty() && !FileState(m_fileName).isUntouchedSince(m_fileState);
}

bool SceneDocument::isFile(const QString &fileName) const
{
    const FileState state(fileName);
    return !m_fileName.isEmpty() && (m_fileName == fileName || state.isSameFile(m_fileState));
}

void SceneDocument::setChangedElsewhere(bool changed)
{
    m_changedElsewhere = changed;
    Q_EMIT modifiedChanged(isModified());
}
