// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEDOCUMENT_H
#define SCENEDOCUMENT_H

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
    QString fileName() const { return m_fileName; }
    QUndoStack *undoStack() { return &m_undoStack; }

    /// On failure the open scene stays. @p messages are reasons, or warnings about a file that was read.
    bool open(const QString &fileName, QStringList *messages);
    /// Saves in the format that was opened; on failure the document stays modified.
    bool save(const QString &fileName, QStringList *messages);

    /// Whether the scene differs from its file, by undo steps or by changes made past the undo stack.
    bool isModified() const;

Q_SIGNALS:
    /// Another scene is open.
    void opened();
    void modifiedChanged(bool modified);

private:
    void setChangedElsewhere(bool changed);

    SceneFile m_file;
    QString m_fileName;
    QUndoStack m_undoStack;
    SceneWatch m_watch;
    bool m_changedElsewhere = false;
    bool m_undoMoved = false; ///< since the scene's last report
};

#endif
