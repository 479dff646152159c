// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef EXACTNUMBERS_H
#define EXACTNUMBERS_H

class QString;
class SoField;
class SoMField;

/**
 * Mends what a value loses on the way through its text: Coin writes a number with 16 digits, or 8, and reads a double
 * with the last bits wrong.
 *
 * Each number of @p typed that @p shown did not have gets its exact value, the others keep the bits that they had in
 * @p before. Fields of types that do not go through text are left alone.
 */
namespace ExactNumbers
{
void mend(SoField &field, const SoField &before, const QString &shown, const QString &typed);
/// In one row; @p before has that row alone.
void mend(SoMField &field, int row, const SoMField &before, const QString &shown, const QString &typed);
} // namespace ExactNumbers

#endif
