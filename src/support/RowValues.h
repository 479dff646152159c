// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROWVALUES_H
#define ROWVALUES_H

#include <QString>

class SoMFString;
class SoMField;

/**
 * The values of a field as rows, whatever their type.
 *
 * Coin's own row operations check no index: one beyond the end corrupts the heap. These check all, and notify once.
 */
namespace RowValues
{
bool contains(const SoMField &field, int row);

/// Exchanges two values, every bit of them.
void swap(SoMField &field, int first, int second);
/// Inserts a value: zero, an empty text, the identity.
bool insert(SoMField &field, int row);
/// Removes as many values as there are from @p row on, at most @p count.
void remove(SoMField &field, int row, int count);

/// A value in the field's notation; empty outside the field.
QString text(SoMField &field, int row);
/// Whether the values are nodes, engines or paths.
bool holdsObjects(const SoMField &field);
/// Whether there is a string that is too long to be made a QString for each paint of its cell.
bool isLongString(const SoMField &field, int row);
/// The start of a string's value, at least @p limit characters where it has as many; costs no more than that.
QString startOfString(const SoMFString &field, int row, int limit);
/// The same of its text().
QString startOfStringText(const SoMFString &field, int row, int limit);
/// Parses a value; returns whether the field's parser accepted it.
bool setText(SoMField &field, int row, const QString &text);
} // namespace RowValues

#endif
