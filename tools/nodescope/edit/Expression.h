// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef EXPRESSION_H
#define EXPRESSION_H

#include <QString>

/**
 * A number as a person types it: 0.5, 0,5, -2.5e-3, 1/3, 2*pi, (1 + 2)^2, 30 deg.
 *
 * Point and comma are both decimal marks, on every desktop; what a comma might mean otherwise is refused.
 */
namespace Expression
{
struct Syntax {
    int base = 10; ///< of the numbers in it; with 8 and 16 they have digits only
    bool isWhole = false; ///< a number may then begin with 0x
    bool isAngle = false; ///< in radians, so that degrees can be told
};

struct Result {
    double value = 0;
    float single = 0; ///< the float nearest to what was typed; infinite where none is near
    QString error; ///< a sentence; empty where the text could be read
    bool isUnfinished = false; ///< the text may become readable by more of it
};

Result evaluate(const QString &text, const Syntax &syntax);

/// The nearest float, or infinity.
float toSingle(double number);
} // namespace Expression

#endif
