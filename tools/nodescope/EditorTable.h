// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef EDITORTABLE_H
#define EDITORTABLE_H

#include <Inventor/SoType.h>

class HbFieldEditorCommandManager;
class HbFieldEditors;
class HbRangeComponent;
class QWidget;
class SoField;

/// The editor for fields of one type.
struct EditorKind {
    SoType (*fieldType)(); ///< null for the kind that shows any field
    HbFieldEditors *(*create)(const char *label, const HbRangeComponent &range, HbFieldEditorCommandManager *manager,
                              QWidget *parent);
    const char *rangeRow; ///< the row of "DefaultNode" that gives the range of fields without a range of their own
    bool canFixRange;
};

namespace EditorTable
{
/// Always finds one.
const EditorKind &kindFor(const SoField &field);

HbRangeComponent rangeFor(const EditorKind &kind, const SoField &field);

/// Narrows the sliders of an editor that earlier values have widened.
void resetRange(HbFieldEditors &editor, const HbRangeComponent &range);
} // namespace EditorTable

#endif
