// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ExactNumbers.h"

#include <QStringList>

#include <Inventor/fields/SoFields.h>

#include <array>
#include <cstring>

namespace
{
struct Texts {
    QStringList shown;
    QStringList typed;
};

Texts wordsOf(const QString &shown, const QString &typed)
{
    const auto split = [](const QString &text) { return text.simplified().split(QLatin1Char(' ')); };
    return {split(shown), split(typed)};
}

template <class Number> Number read(const QString &text)
{
    if constexpr (std::is_same_v<Number, float>)
        return text.toFloat();
    else
        return text.toDouble();
}

/// The value that was meant. Coin's classes are their numbers, one after the other.
template <class Number, class Value> Value meant(Value value, const Value &before, const Texts &texts)
{
    constexpr std::size_t count = sizeof(Value) / sizeof(Number);
    std::array<Number, count> numbers;
    static_assert(sizeof numbers == sizeof value);
    if (texts.typed.size() != static_cast<int>(count))
        return value;
    std::memcpy(numbers.data(), &before, sizeof numbers);
    for (std::size_t i = 0; i < count; ++i) {
        const int at = static_cast<int>(i);
        if (texts.shown.value(at) != texts.typed[at])
            numbers[i] = read<Number>(texts.typed[at]);
    }
    std::memcpy(static_cast<void *>(&value), numbers.data(), sizeof numbers);
    return value;
}

template <class Value> bool areSame(const Value &first, const Value &second)
{
    return std::memcmp(static_cast<const void *>(&first), static_cast<const void *>(&second), sizeof first) == 0;
}

template <class Number, class Field> bool mendAs(SoField &field, const SoField &before, const Texts &texts)
{
    if (field.getTypeId() != Field::getClassTypeId())
        return false;
    auto &typed = static_cast<Field &>(field);
    const auto value = meant<Number>(typed.getValue(), static_cast<const Field &>(before).getValue(), texts);
    if (!areSame(value, typed.getValue()))
        typed.setValue(value);
    return true;
}

template <class Number, class Field>
bool mendRowAs(SoMField &field, int row, const SoMField &before, const Texts &texts)
{
    if (field.getTypeId() != Field::getClassTypeId())
        return false;
    auto &typed = static_cast<Field &>(field);
    const auto value = meant<Number>(*typed.getValues(row), *static_cast<const Field &>(before).getValues(0), texts);
    if (!areSame(value, *typed.getValues(row)))
        typed.set1Value(row, value);
    return true;
}

template <class Number, class... Fields> bool mendAny(SoField &field, const SoField &before, const Texts &texts)
{
    return (mendAs<Number, Fields>(field, before, texts) || ...);
}
template <class Number, class... Fields>
bool mendAnyRow(SoMField &field, int row, const SoMField &before, const Texts &texts)
{
    return (mendRowAs<Number, Fields>(field, row, before, texts) || ...);
}
} // namespace

void ExactNumbers::mend(SoField &field, const SoField &before, const QString &shown, const QString &typed)
{
    const Texts texts = wordsOf(shown, typed);
    if (!mendAny<double, SoSFDouble, SoSFTime, SoSFVec2d, SoSFVec3d, SoSFVec4d, SoSFBox2d, SoSFBox3d>(field, before,
                                                                                                      texts))
        mendAny<float, SoSFColorRGBA, SoSFBox2f, SoSFBox3f>(field, before, texts);
}

void ExactNumbers::mend(SoMField &field, int row, const SoMField &before, const QString &shown, const QString &typed)
{
    const Texts texts = wordsOf(shown, typed);
    if (row >= field.getNum() || before.getNum() < 1)
        return;
    if (!mendAnyRow<double, SoMFDouble, SoMFTime, SoMFVec2d, SoMFVec3d, SoMFVec4d>(field, row, before, texts))
        mendAnyRow<float, SoMFColorRGBA>(field, row, before, texts);
}
