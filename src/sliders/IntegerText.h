// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef INTEGERTEXT_H
#define INTEGERTEXT_H

#include <QString>

/// Integers as text in base 10, 8 or 16.
namespace IntegerText
{
/// 16 for more than two characters that begin "0x", 8 for "0" and one more character, else 10.
/// So "07" is octal while "017" is decimal: deliberate.
int baseOf(const QString &text);

/// "0x", "0" or nothing.
QString prefix(int base);

/// Digits without a prefix; a negative number is a minus and its magnitude in every base.
QString digits(qint64 number, int base);

/// What an edit that shows @p number in @p base tells when the pointer rests on it; empty for base 10.
QString toolTip(qint64 number, int base);
} // namespace IntegerText

#endif
