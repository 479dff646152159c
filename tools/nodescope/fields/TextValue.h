// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TEXTVALUE_H
#define TEXTVALUE_H

#include <QString>

class SoField;

/// A field's whole value as a text that other programs use too.
namespace TextValue
{
/// A text or a name as it is, anything else in the notation of scene files.
QString of(SoField &field);

/// Whether @p text was a value of the field from its first character to its last; if not, the field holds anything.
bool set(SoField &field, const QString &text);
} // namespace TextValue

#endif
