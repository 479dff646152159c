// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ANGLEFIELDS_H
#define ANGLEFIELDS_H

class SoField;

/// Which fields hold angles, all in radians.
namespace AngleFields
{
/// Whether the value is one, or ends with one: "heightAngle" of a camera, rotations.
bool isAngle(const SoField &field);
/// Whether this component of a value is one: the fourth of a rotation.
bool isAngle(const SoField &field, int component);
} // namespace AngleFields

#endif
