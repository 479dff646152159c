// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROTATIONNUMBERS_H
#define ROTATIONNUMBERS_H

#include <array>

class SbRotation;

/// A rotation is kept as a quaternion: its axis and angle have to be found again.
namespace RotationNumbers
{
using AxisAndAngle = std::array<float, 4>;

/// With as few digits as give the same quaternion; where none do, the nearest ones.
AxisAndAngle of(const SbRotation &rotation);
} // namespace RotationNumbers

#endif
