// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDLENGTH_H
#define FIELDLENGTH_H

class SoField;

/// Whether the notation of a field's value, with the nodes that it refers to, is too long to be edited in a line.
/// Costs the same for the largest scene as for a small one.
bool isLong(const SoField &field);

#endif
