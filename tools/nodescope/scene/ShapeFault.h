// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SHAPEFAULT_H
#define SHAPEFAULT_H

#include <QString>

class SoShape;
struct ShapeSupply;

/// Why Coin would read beyond what there is if it drew the shape, as the end of a sentence; empty where it would not.
/// With @p isPicked the same for a line of sight, which relies on lists of indices that drawing faces does without.
QString faultOf(const SoShape &shape, const ShapeSupply &supply, bool isPicked = false);

#endif
