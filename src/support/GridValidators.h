// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef GRIDVALIDATORS_H
#define GRIDVALIDATORS_H

#include "NumberValidator.h"

#include <limits>

/// The validators of the edits in popup grids.
namespace GridValidators
{
constexpr int none = 0;
constexpr int short16 = 1;
constexpr int whole32 = 2;
constexpr int real6 = 3; ///< floats with 6 decimals
constexpr int anyReal = 4;

constexpr double largestFloat = std::numeric_limits<float>::max();

/// Gives the edit a validator of this kind in place of the one it has; an unknown kind changes nothing.
inline void install(int kind, QLineEdit *edit)
{
    if (kind < none || kind > anyReal)
        return;
    constexpr int decimals = 6;
    const QValidator *const replaced = edit->validator();
    switch (kind) {
    case short16:
        edit->setValidator(
            new IntValidator(edit, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()));
        break;
    case whole32:
        edit->setValidator(new IntValidator(edit));
        break;
    case real6:
        edit->setValidator(new RealValidator(edit, -largestFloat, largestFloat, decimals));
        break;
    case anyReal:
        edit->setValidator(new RealValidator(edit));
        break;
    default:
        edit->setValidator(nullptr);
    }
    delete replaced;
}
} // namespace GridValidators

#endif
