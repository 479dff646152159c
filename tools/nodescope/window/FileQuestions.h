// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FILEQUESTIONS_H
#define FILEQUESTIONS_H

#include <QStringList>

class QWidget;

/// What the user is asked before a file changes or changes are dropped. All dialogs are modal to @p window.
namespace FileQuestions
{
enum class Answer { Save, SaveAs, Reload, Discard, Cancel };

/// Before saving over a file that holds more than is written: @p losses are whole lines. @p backup is
/// the name under which the file as it is now is kept, empty for none.
Answer beforeReplacing(QWidget *window, const QString &name, const QStringList &losses, const QString &backup);
/// Before saving over what another program has written.
Answer fileTouched(QWidget *window, const QString &name, const QString &backup);
/// After saving failed: SaveAs or Cancel.
Answer notSaved(QWidget *window, const QString &reason);
/// Before the scene goes: Save, Discard or Cancel.
Answer unsavedChanges(QWidget *window, const QString &name);
/// Before the file takes the place of the changes: Reload or Cancel.
Answer reload(QWidget *window, const QString &name);
} // namespace FileQuestions

#endif
