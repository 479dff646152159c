// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDCLIPBOARD_H
#define FIELDCLIPBOARD_H

#include <QString>

#include <memory>

class SoField;

/// Values of whole fields on the clipboard: to the last bit within this program, as text for others and from them.
namespace FieldClipboard
{
void copy(SoField &field);

bool isEmpty();

/// The value on the clipboard as a field like @p target; null, and a sentence in @p problem, where it does not fit.
std::shared_ptr<SoField> valueFor(const SoField &target, QString *problem);
} // namespace FieldClipboard

#endif
