// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SliderRanges.h"

#include "FieldLimits.h"

#include <HbRangeComponent.h>
#include <HbRangeSettings.h>

#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoFields.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
constexpr bool soft = false;

/// A type of fields that sliders set.
struct NumberType {
    SoType (*single)();
    SoType (*many)();
    double lowest;
    double highest;
    bool isWhole;
    std::optional<double> (*read)(const SoField &field, int row);
};

template <class Single, class Many> std::optional<double> read(const SoField &field, int row)
{
    if (field.isOfType(Single::getClassTypeId()))
        return static_cast<double>(static_cast<const Single &>(field).getValue());
    const auto &values = static_cast<const Many &>(field);
    if (row < 0 || row >= values.getNum())
        return std::nullopt;
    return static_cast<double>(values[row]);
}

template <class Single, class Many, class Number> constexpr NumberType numberType()
{
    using Limits = std::numeric_limits<Number>;
    return {Single::getClassTypeId,
            Many::getClassTypeId,
            static_cast<double>(Limits::lowest()),
            static_cast<double>(Limits::max()),
            Limits::is_integer,
            read<Single, Many>};
}

const NumberType *typeOf(const SoField &field)
{
    static constexpr NumberType types[] = {
        numberType<SoSFFloat, SoMFFloat, float>(),
        numberType<SoSFInt32, SoMFInt32, int32_t>(),
        numberType<SoSFShort, SoMFShort, short>(),
        numberType<SoSFUInt32, SoMFUInt32, uint32_t>(),
        numberType<SoSFUShort, SoMFUShort, unsigned short>(),
    };
    const auto *const found = std::find_if(std::begin(types), std::end(types), [&](const NumberType &type) {
        return field.isOfType(type.single()) || field.isOfType(type.many());
    });
    return found == std::end(types) ? nullptr : found;
}

/// The next of 1, 2, 5, 10, 20, 50, ... that is not below @p number.
double roundedUp(double number)
{
    const double power = std::pow(10, std::floor(std::log10(number)));
    for (const double factor : {1, 2, 5})
        if (factor * power >= number * (1 - 1e-9))
            return factor * power;
    return 10 * power;
}

SliderSpan fitting(double number, const SliderSpan &ofZero)
{
    if (number == 0 || !std::isfinite(number))
        return ofZero;
    const double size = roundedUp(2 * std::abs(number));
    return {number < 0 ? -size : 0, size, soft};
}

SliderSpan toSpan(const HbRangeComponent &range, bool isWhole)
{
    if (isWhole)
        return {double(range.iMin), double(range.iMax), soft}; // no slider of whole numbers gives up a hard limit
    return {double(range.fMin), double(range.fMax), range.boundFixed};
}
} // namespace

std::optional<double> SliderRanges::numberIn(const SoField &field, int row)
{
    const NumberType *const type = typeOf(field);
    return type ? type->read(field, row) : std::nullopt;
}

SliderSpan SliderRanges::widened(SliderSpan span, double number)
{
    if (!std::isfinite(number))
        return span;
    const double size = span.isHard || number == 0 ? std::abs(number) : roundedUp(2 * std::abs(number));
    if (number < span.low)
        span.low = std::copysign(size, number);
    if (number > span.high)
        span.high = std::copysign(size, number);
    return span;
}

SliderSpan SliderRanges::spanFor(const SoField &field, double number)
{
    static const HbRangeSettings settings;
    const NumberType *const type = typeOf(field);
    const bool isWhole = type && type->isWhole;
    const SoFieldContainer *const container = field.getContainer();
    SbName name;
    std::optional<SliderSpan> span;
    if (container && container->getFieldName(&field, name)) {
        span = FieldLimits::of(*container, name.getString());
        const char *const nodeClass = container->getTypeId().getName().getString();
        if (!span && settings.isBounded(nodeClass, name.getString()))
            span = toSpan(settings.getFieldRange(nodeClass, name.getString()), isWhole);
    }
    if (!span)
        span = fitting(isWhole && number != 0 ? std::copysign(std::max(std::abs(number), 5.0), number) : number,
                       toSpan(settings.getFieldRange("DefaultNode", isWhole ? "intField" : "floatField"), isWhole));
    *span = widened(*span, number);
    if (type) {
        span->low = std::max(span->low, type->lowest);
        span->high = std::min(span->high, type->highest);
    }
    return *span;
}
