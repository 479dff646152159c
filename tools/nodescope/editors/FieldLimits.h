// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDLIMITS_H
#define FIELDLIMITS_H

#include "SliderRanges.h"

class SoFieldContainer;

/// What is known of the numbers in the fields of Coin's own classes.
namespace FieldLimits
{
/// Nothing where the field has no natural limits.
std::optional<SliderSpan> of(const SoFieldContainer &container, const char *field);
} // namespace FieldLimits

#endif
