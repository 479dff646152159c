// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEDOCUMENT_H
#define SCENEDOCUMENT_H

#include "FileState.h"
#include "SceneFile.h"
#include "SceneWatch.h"

#include <QObject>
#include <QUndoStack>

/// The open scene, where it came from, its undo steps, and whether it must be saved.
class SceneDocument : public QObject
{
    Q_OBJECT

public:
    explicit SceneDocument(QObject *parent = nullptr);

    /// Never null: without a file an empty scene.
    SoSeparator *root() const { return m_file.root.get(); }
    /// Empty where no file was opened: nothing, or what came through standard input.
    QString fileName() const { return m_fileName; }
    /// The file's name without its folder, or what stands for it.
    QString title() const;
    /// Of a file in the format that was opened: "iv", "wrl.gz".
    QString suffix() const;
    /// Whether there is a scene, from wherever it came.
    bool isOpen() const { return m_isOpen; }
    QUndoStack *undoStack() { return &m_undoStack; }

    /// On failure the open scene stays. @p messages are reasons, or warnings about a file that was read.
    bool open(const QString &fileName, QStringList *messages, const ReadingProgress &progress = {});
    /// Saves in the format that was opened; on failure the document stays modified.
    bool save(const QString &fileName, QStringList *messages);

    /// Whether the scene differs from its file, by undo steps or by changes made past the undo stack.
    bool isModified() const;
    /// Whether another program wrote, replaced or removed the file since it was opened or saved.
    bool isFileTouched() const;
    /// Whether @p fileName leads to the file that is open, by whatever name.
    bool isFile(const QString &fileName) const;
    /// What the file holds that saving over it drops; nothing once it was saved.
    const SaveLosses &losses() const { return m_file.losses; }

Q_SIGNALS:
    /// Another scene is open.
    void opened();
    void modifiedChanged(bool modified);

private:
    void setChangedElsewhere(bool changed);

    SceneFile m_file;
    QString m_fileName;
    FileState m_fileState; ///< as it was opened or saved
    bool m_isOpen = false;
    QUndoStack m_undoStack;
    SceneWatch m_watch;
    bool m_changedElsewhere = false;
    bool m_undoMoved = false; ///< since the scene's last report
};

#endif
