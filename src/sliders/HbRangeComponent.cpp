// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbRangeComponent.h>

HbRangeComponent::HbRangeComponent(int min, int max, bool fixed) : iMin(min), iMax(max), boundFixed(fixed) { }

HbRangeComponent::HbRangeComponent(float min, float max, bool fixed) : fMin(min), fMax(max), boundFixed(fixed) { }

void HbRangeComponent::setBoundFixed(bool fixed)
{
    boundFixed = fixed;
}

void HbRangeComponent::setfRange(float min, float max)
{
    fMin = min;
    fMax = max;
}

void HbRangeComponent::setiRange(int min, int max)
{
    iMin = min;
    iMax = max;
}

bool HbRangeComponent::operator==(const HbRangeComponent &other) const
{
    return fMin == other.fMin && fMax == other.fMax && iMin == other.iMin && iMax == other.iMax
        && boundFixed == other.boundFixed;
}

bool HbRangeComponent::operator!=(const HbRangeComponent &other) const
{
    return !(*this == other);
}
