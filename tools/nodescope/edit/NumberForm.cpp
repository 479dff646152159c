// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "NumberForm.h"

#include "AngleFields.h"
#include "Expression.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <Inventor/SbMatrix.h>
#include <Inventor/SbPlane.h>
#include <Inventor/fields/SoFields.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <type_traits>

namespace
{
class Sentences
{
    Q_DECLARE_TR_FUNCTIONS(NumberForm)
};

template <class Number> constexpr NumberForm formOf(int count)
{
    using Limits = std::numeric_limits<Number>;
    using Kind = NumberForm::Kind;
    NumberForm form;
    form.kind = Limits::is_integer ? Kind::Whole : std::is_same_v<Number, float> ? Kind::Single : Kind::Double;
    form.count = count;
    form.least = static_cast<double>(Limits::lowest());
    form.most = static_cast<double>(Limits::max());
    return form;
}

template <class Value, class = void> struct IsBox : std::false_type {
};
template <class Value> struct IsBox<Value, std::void_t<decltype(std::declval<const Value &>().getMin()[0])>>
    : std::true_type {
};

template <class Value> constexpr NumberForm formOfValue()
{
    if constexpr (std::is_arithmetic_v<Value>)
        return formOf<Value>(1);
    else if constexpr (std::is_same_v<Value, SbTime>)
        return formOf<double>(1);
    else if constexpr (std::is_same_v<Value,
                                      SbMatrix> || std::is_same_v<Value, SbPlane> || std::is_same_v<Value, SbRotation>)
        return formOf<float>(sizeof(Value) / sizeof(float));
    else if constexpr (IsBox<Value>::value)
        return formOf<std::decay_t<decltype(std::declval<const Value &>().getMin()[0])>>(
            2 * formOfValue<std::decay_t<decltype(std::declval<const Value &>().getMin())>>().count);
    else
        return formOf<std::decay_t<decltype(std::declval<const Value &>()[0])>>(
            static_cast<int>(sizeof(Value) / sizeof(std::declval<const Value &>()[0])));
}

struct Row {
    SoType (*type)();
    NumberForm form;
};
template <class Field> constexpr Row single()
{
    return {&Field::getClassTypeId, formOfValue<std::decay_t<decltype(std::declval<const Field &>().getValue())>>()};
}
template <class Field> constexpr Row multiple()
{
    return {&Field::getClassTypeId, formOfValue<std::decay_t<decltype(*std::declval<const Field &>().getValues(0))>>()};
}

constexpr Row rows[] = {
    single<SoSFFloat>(),     single<SoSFDouble>(),    single<SoSFInt32>(),       single<SoSFUInt32>(),
    single<SoSFShort>(),     single<SoSFUShort>(),    single<SoSFTime>(),        single<SoSFColor>(),
    single<SoSFColorRGBA>(), single<SoSFRotation>(),  single<SoSFPlane>(),       single<SoSFMatrix>(),
    single<SoSFVec2f>(),     single<SoSFVec3f>(),     single<SoSFVec4f>(),       single<SoSFVec2d>(),
    single<SoSFVec3d>(),     single<SoSFVec4d>(),     single<SoSFVec2s>(),       single<SoSFVec3s>(),
    single<SoSFVec4s>(),     single<SoSFVec4us>(),    single<SoSFVec2b>(),       single<SoSFVec3b>(),
    single<SoSFVec4b>(),     single<SoSFVec4ub>(),    single<SoSFVec2i32>(),     single<SoSFVec3i32>(),
    single<SoSFVec4i32>(),   single<SoSFVec4ui32>(),  single<SoSFBox2s>(),       single<SoSFBox2i32>(),
    single<SoSFBox2f>(),     single<SoSFBox2d>(),     single<SoSFBox3s>(),       single<SoSFBox3i32>(),
    single<SoSFBox3f>(),     single<SoSFBox3d>(),     multiple<SoMFFloat>(),     multiple<SoMFDouble>(),
    multiple<SoMFInt32>(),   multiple<SoMFUInt32>(),  multiple<SoMFShort>(),     multiple<SoMFUShort>(),
    multiple<SoMFTime>(),    multiple<SoMFColor>(),   multiple<SoMFColorRGBA>(), multiple<SoMFRotation>(),
    multiple<SoMFPlane>(),   multiple<SoMFMatrix>(),  multiple<SoMFVec2f>(),     multiple<SoMFVec3f>(),
    multiple<SoMFVec4f>(),   multiple<SoMFVec2d>(),   multiple<SoMFVec3d>(),     multiple<SoMFVec4d>(),
    multiple<SoMFVec2s>(),   multiple<SoMFVec3s>(),   multiple<SoMFVec4s>(),     multiple<SoMFVec4us>(),
    multiple<SoMFVec2b>(),   multiple<SoMFVec3b>(),   multiple<SoMFVec4b>(),     multiple<SoMFVec4ub>(),
    multiple<SoMFVec2i32>(), multiple<SoMFVec3i32>(), multiple<SoMFVec4i32>(),   multiple<SoMFVec4ui32>(),
};

constexpr SoType (*colors[])() = {SoSFColor::getClassTypeId, SoSFColorRGBA::getClassTypeId, SoMFColor::getClassTypeId,
                                  SoMFColorRGBA::getClassTypeId};

/// The nearest whole number, of a result that the computation has missed by its rounding only.
double rounded(double value)
{
    constexpr double precision = 1e-12;
    const double whole = std::round(value);
    return std::abs(value - whole) <= precision * std::abs(whole) ? whole : value;
}
} // namespace

NumberForm NumberForm::of(const SoField &field)
{
    for (const Row &row : rows) {
        if (row.type() != field.getTypeId())
            continue;
        NumberForm form = row.form;
        form.isAngle = AngleFields::isAngle(field);
        form.isShare
            = std::any_of(std::begin(colors), std::end(colors), [&](auto type) { return type() == row.type(); });
        return form;
    }
    return {};
}

NumberForm NumberForm::component() const
{
    NumberForm one = *this;
    one.count = 1;
    return one;
}

QString NumberForm::written(double value) const
{
    if (kind == Kind::Whole)
        return value < 0 ? QLatin1Char('-') + QString::number(static_cast<quint64>(-value), base)
                         : QString::number(static_cast<quint64>(value), base);
    if (kind == Kind::Double)
        return QString::number(value, 'g', QLocale::FloatingPointShortest);
    const float single = Expression::toSingle(value);
    int digits = std::numeric_limits<float>::digits10;
    QString text;
    do
        text = QString::number(static_cast<double>(single), 'g', digits++);
    while (text.toFloat() != single && digits <= std::numeric_limits<float>::max_digits10);
    return text;
}

QString NumberForm::range() const
{
    switch (base) {
    case 16:
        return Sentences::tr("The number must lie between %1 and %2, in hexadecimal digits.");
    case 8:
        return Sentences::tr("The number must lie between %1 and %2, in octal digits.");
    default:
        return Sentences::tr("The number must lie between %1 and %2.");
    }
}

NumberForm::Reading NumberForm::readOne(const QString &text, bool mayBeAngle) const
{
    const Expression::Result result = Expression::evaluate(text, {base, kind == Kind::Whole, mayBeAngle});
    Reading reading{{}, result.value, result.error, result.isUnfinished};
    if (!reading.isReadable())
        return reading;
    if (kind == Kind::Single)
        reading.value = static_cast<double>(result.single);
    else if (kind == Kind::Whole)
        reading.value = rounded(result.value);
    if (kind == Kind::Whole && std::floor(reading.value) != reading.value)
        reading.error = Sentences::tr("%1 is no whole number.").arg(result.value, 0, 'g', 6);
    else if (reading.value < least || reading.value > most)
        reading.error = kind != Kind::Whole ? Sentences::tr("The number is too large for the field.")
                                            : range().arg(written(least), written(most));
    else
        reading.text = written(reading.value);
    return reading;
}

/// Whether everybody reads the text so: it may be one that nobody has touched.
bool NumberForm::isPlain(const QString &text, double value) const
{
    bool isNumber = false;
    const double number
        = kind == Kind::Single ? static_cast<double>(text.toFloat(&isNumber)) : text.toDouble(&isNumber);
    return isNumber && number == value;
}

NumberForm::Reading NumberForm::read(const QString &text) const
{
    if (count == 1)
        return readOne(text, isAngle);
    const QStringList words = text.simplified().split(QLatin1Char(' '));
    QStringList texts;
    Reading first;
    for (const QString &word : words) {
        const Reading reading = readOne(word, isAngle && texts.size() == count - 1);
        if (!reading.isReadable())
            return reading;
        if (texts.isEmpty())
            first = reading;
        texts += isPlain(word, reading.value) ? word : reading.text;
    }
    first.text = texts.join(QLatin1Char(' '));
    if (texts.size() != count) {
        first.error
            = Sentences::tr("%1 numbers with spaces between them are needed, not %2.").arg(count).arg(texts.size());
        first.isUnfinished = texts.size() < count;
    }
    return first;
}
