// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef EDITORTABLE_H
#define EDITORTABLE_H

#include <QStringList>

#include <Inventor/SoType.h>

class HbFieldEditorCommandManager;
class HbFieldEditors;
class QWidget;
class SoField;

/// The editor for fields of one type.
struct EditorKind {
    SoType (*fieldType)(); ///< null for the kind that shows any field
    HbFieldEditors *(*create)(SoField &field, const char *label, HbFieldEditorCommandManager *manager, QWidget *parent);
};

namespace EditorTable
{
/// Always finds one.
const EditorKind &kindFor(const SoField &field);

/// Whether the editor is of one of the classes that are made here, and not of one derived from them: its
/// controls then show what the tool takes them to show.
bool isStandard(const HbFieldEditors &editor);

/// The names that an editor for @p field offers; none where it offers no choice.
QStringList choices(const SoField &field);

/// Brings up to date what an editor took from its field when it was built: names taken over by a value that
/// has none. To be called before each refresh of a standard editor.
void renew(HbFieldEditors &editor, const SoField &field);
} // namespace EditorTable

#endif
