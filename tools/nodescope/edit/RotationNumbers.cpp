// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RotationNumbers.h"

#include <Inventor/SbRotation.h>
#include <Inventor/SbVec3f.h>

#include <algorithm>
#include <cmath>

namespace
{
using RotationNumbers::AxisAndAngle;

struct Exact {
    double axis[3];
    double angle;
};

double toDecimals(double number, int decimals)
{
    const double scale = std::pow(10, decimals);
    return std::round(number * scale) / scale + 0.0; // no -0
}

double toDigits(double number, int digits)
{
    return number > 0 ? toDecimals(number, digits - 1 - static_cast<int>(std::floor(std::log10(number)))) : 0;
}

AxisAndAngle rounded(const Exact &exact, int axisDecimals, int angleDigits)
{
    const auto part = [&](int i) { return static_cast<float>(toDecimals(exact.axis[i], axisDecimals)); };
    return {part(0), part(1), part(2), static_cast<float>(toDigits(exact.angle, angleDigits))};
}

bool gives(const AxisAndAngle &numbers, const SbRotation &rotation)
{
    const SbVec3f axis(numbers.data());
    if (axis == SbVec3f(0, 0, 0))
        return false;
    const SbRotation made(axis, numbers[3]);
    return std::equal(made.getValue(), made.getValue() + 4, rotation.getValue());
}

/// Where the rotation is near an axis, that axis.
AxisAndAngle nearest(const Exact &exact)
{
    constexpr double precision = 1e-6;
    AxisAndAngle numbers{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double whole = std::round(exact.axis[i]) + 0.0;
        numbers[i] = static_cast<float>(std::abs(exact.axis[i] - whole) <= precision ? whole : exact.axis[i]);
    }
    numbers[3] = static_cast<float>(exact.angle);
    return numbers;
}
} // namespace

RotationNumbers::AxisAndAngle RotationNumbers::of(const SbRotation &rotation)
{
    constexpr int mostDigits = 9;
    const float *const q = rotation.getValue();
    const double sine
        = std::sqrt(double(q[0]) * double(q[0]) + double(q[1]) * double(q[1]) + double(q[2]) * double(q[2]));
    if (!std::isnormal(sine) || !std::isfinite(q[3]))
        return {0, 0, 1, 0}; // as Coin writes it
    const Exact exact{{double(q[0]) / sine, double(q[1]) / sine, double(q[2]) / sine},
                      2 * std::atan2(sine, double(q[3]))};
    for (int decimals = 0; decimals < mostDigits; ++decimals)
        for (int digits = 1; digits <= mostDigits; ++digits)
            if (const AxisAndAngle numbers = rounded(exact, decimals, digits); gives(numbers, rotation))
                return numbers;
    return nearest(exact);
}
