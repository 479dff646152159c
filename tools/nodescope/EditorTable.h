// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef EDITORTABLE_H
#define EDITORTABLE_H

#include <QStringList>

#include <Inventor/SoType.h>

class HbFieldEditorCommandManager;
class HbFieldEditors;
class HbRangeComponent;
class QWidget;
class SoField;

/// The editor for fields of one type.
struct EditorKind {
    SoType (*fieldType)(); ///< null for the kind that shows any field
    HbFieldEditors *(*create)(SoField &field, const char *label, const HbRangeComponent &range,
                              HbFieldEditorCommandManager *manager, QWidget *parent);
    const char *rangeRow; ///< the row of "DefaultNode" that gives the range of fields without a range of their own
    bool canFixRange;
};

namespace EditorTable
{
/// Always finds one.
const EditorKind &kindFor(const SoField &field);

/// Whether the editor is of one of the library's classes for single values, and not of one derived from them: its
/// controls then show what the tool takes them to show.
bool isStandard(const HbFieldEditors &editor);

HbRangeComponent rangeFor(const EditorKind &kind, const SoField &field);

/// The names that an editor for @p field offers; none where it offers no choice.
QStringList choices(const SoField &field);

/// Narrows the sliders of an editor that earlier values have widened.
void resetRange(HbFieldEditors &editor, const HbRangeComponent &range);

/// Brings up to date what an editor took from its field when it was built: names taken over by a value that
/// has none, and the bits of a mask. To be called before each refresh of a standard editor.
void renew(HbFieldEditors &editor, const SoField &field);
} // namespace EditorTable

#endif
