// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBRANGECOMPONENT_H
#define HBRANGECOMPONENT_H

#include <harborapi_export.h>

/// The range of a number field: bounds for a float and for an integer, and whether they are hard.
class HARBORAPI_EXPORT HbRangeComponent
{
public:
    /// All bounds 0, not fixed.
    HbRangeComponent() = default;
    /// An integer range; the float bounds are 0.
    HbRangeComponent(int min, int max, bool fixed);
    /// A float range; the integer bounds are 0.
    HbRangeComponent(float min, float max, bool fixed);

    void setBoundFixed(bool fixed);
    void setfRange(float min, float max);
    void setiRange(int min, int max);

    /// Ranges that hold NaN equal nothing, themselves included.
    bool operator==(const HbRangeComponent &other) const;
    bool operator!=(const HbRangeComponent &other) const;

    float fMin = 0;
    float fMax = 0;
    int iMin = 0;
    int iMax = 0;
    bool boundFixed = false; ///< true: values are kept inside; false: only the span that is shown first
};

#endif
