// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDROWS_H
#define FIELDROWS_H

#include <QStringList>

#include <memory>

class SoMField;

/// Values of a field of many, to the bit, without a copy of all the others.
namespace FieldRows
{
/// A field of the same type that holds @p count of the values from @p row on, or fewer where there are fewer.
std::shared_ptr<SoMField> copy(const SoMField &field, int row, int count);
/// A field of the type of @p like that holds @p count zeros, empty texts or identities.
std::shared_ptr<SoMField> zeros(const SoMField &like, int count);
/// Puts @p values in the place of the @p count values from @p row on; notifies once.
void replace(SoMField &field, int row, int count, const SoMField &values);
bool areSame(const SoMField &first, const SoMField &second);
/// Whether the values consist of whole numbers.
bool areWhole(const SoMField &field);

/// Whether the values stand for themselves, and not for nodes, paths, engines or names.
bool areValues(const SoMField &field);
/// The numbers of a value in the fewest digits that read back to the same bits; none where it does not consist of
/// floats.
QStringList numberTexts(const SoMField &field, int row);

/// Exchanges two components in every value; false where the values have no such components.
bool swapColumns(SoMField &field, int first, int second);
} // namespace FieldRows

#endif
