// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef MEASUREDEDITORS_H
#define MEASUREDEDITORS_H

#include "PlainRow.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

class HbFieldEditorCommandManager;
class HbFieldEditors;

/// An editor, a field for it, and what a person would write instead.
struct MeasuredEditor {
    const char *name;
    std::shared_ptr<SoField> (*newField)();
    HbFieldEditors *(*newEditor)(SoField &field, HbFieldEditorCommandManager *manager, QWidget *parent);
    PlainRow::Area area;
    void (*show)(PlainRow &row, SoField &field); ///< the plain counterpart of a refresh, but for the ignore flag
    std::array<std::string, 2> values; ///< in the field's notation
    bool hasPopup = false;
};

const std::vector<MeasuredEditor> &measuredEditors();

#endif
