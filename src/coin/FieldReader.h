// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDREADER_H
#define FIELDREADER_H

#include "ReaderGuard.h"

#include <Inventor/fields/SoMField.h>

/// Gives a field, or one of its values, a text to read, unless Coin's reader would not survive it. False: nothing was
/// read.
namespace FieldReader
{
inline bool isSafe(const SoField &field, const char *text)
{
    return ReaderGuard::inFieldText(field, text) == ReaderGuard::Danger::None;
}

inline bool set(SoField &field, const char *text)
{
    return isSafe(field, text) && field.set(text);
}

inline bool set1(SoMField &field, int index, const char *text)
{
    return isSafe(field, text) && field.set1(index, text);
}
} // namespace FieldReader

#endif
