// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SLIDERRANGES_H
#define SLIDERRANGES_H

#include <optional>

class SoField;

/// What a slider reaches from end to end.
struct SliderSpan {
    double low;
    double high;
    bool isHard; ///< the field has no use for values beyond

    bool operator==(const SliderSpan &other) const
    {
        return low == other.low && high == other.high && isHard == other.isHard;
    }
};

namespace SliderRanges
{
/// The number that a field of numbers holds, in a row of it where it holds many; nothing where there is none.
std::optional<double> numberIn(const SoField &field, int row = 0);

/// The span for a number of @p field: the field's own limits where it has any, else one that fits the number's size.
/// It holds every number that a field of this type can, also one beyond the limits.
SliderSpan spanFor(const SoField &field, double number);

/// @p span, widened where it does not hold @p number.
SliderSpan widened(SliderSpan span, double number);
} // namespace SliderRanges

#endif
