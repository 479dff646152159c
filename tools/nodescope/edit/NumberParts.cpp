// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "NumberParts.h"

#include "RotationNumbers.h"

#include <QLineEdit>

#include <Inventor/SbMatrix.h>
#include <Inventor/SbPlane.h>
#include <Inventor/fields/SoFields.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
using NumberParts::Numbers;

struct Parts {
    SoType (*type)();
    Numbers (*split)(const SoField &field);
    void (*join)(SoField &field, const Numbers &numbers);
};

template <class Field, int count> Parts vectorParts()
{
    return {&Field::getClassTypeId,
            [](const SoField &field) {
                const auto value = static_cast<const Field &>(field).getValue();
                return Numbers(value.getValue(), value.getValue() + count);
            },
            [](SoField &field, const Numbers &numbers) { static_cast<Field &>(field).setValue(numbers.data()); }};
}

Numbers splitFloat(const SoField &field)
{
    return {static_cast<const SoSFFloat &>(field).getValue()};
}

void joinFloat(SoField &field, const Numbers &numbers)
{
    static_cast<SoSFFloat &>(field).setValue(numbers.front());
}

Numbers splitMatrix(const SoField &field)
{
    const SbMatrix value = static_cast<const SoSFMatrix &>(field).getValue();
    return Numbers(value[0], value[0] + 16);
}

void joinMatrix(SoField &field, const Numbers &numbers)
{
    SbMatrix value;
    std::copy(numbers.begin(), numbers.end(), value[0]);
    static_cast<SoSFMatrix &>(field).setValue(value);
}

Numbers splitRotation(const SoField &field)
{
    const auto numbers = RotationNumbers::of(static_cast<const SoSFRotation &>(field).getValue());
    return {numbers.begin(), numbers.end()};
}

void joinRotation(SoField &field, const Numbers &numbers)
{
    static_cast<SoSFRotation &>(field).setValue(SbVec3f(numbers.data()), numbers[3]);
}

Numbers splitPlane(const SoField &field)
{
    const SbPlane plane = static_cast<const SoSFPlane &>(field).getValue();
    const SbVec3f &normal = plane.getNormal();
    return {normal[0], normal[1], normal[2], plane.getDistanceFromOrigin()};
}

void joinPlane(SoField &field, const Numbers &numbers)
{
    static_cast<SoSFPlane &>(field).setValue(SbPlane(SbVec3f(numbers.data()), numbers[3]));
}

const Parts *partsOf(const SoField &field)
{
    static const Parts all[] = {
        {SoSFFloat::getClassTypeId, splitFloat, joinFloat},
        {SoSFMatrix::getClassTypeId, splitMatrix, joinMatrix},
        {SoSFRotation::getClassTypeId, splitRotation, joinRotation},
        {SoSFPlane::getClassTypeId, splitPlane, joinPlane},
        vectorParts<SoSFVec2f, 2>(),
        vectorParts<SoSFVec3f, 3>(),
        vectorParts<SoSFVec4f, 4>(),
        vectorParts<SoSFColor, 3>(),
    };
    const auto *const found = std::find_if(std::begin(all), std::end(all),
                                           [&](const Parts &parts) { return parts.type() == field.getTypeId(); });
    return found == std::end(all) ? nullptr : found;
}

} // namespace

NumberParts::Numbers NumberParts::of(const SoField &field)
{
    const Parts *const parts = partsOf(field);
    return parts ? parts->split(field) : Numbers();
}

void NumberParts::set(SoField &field, const Numbers &numbers)
{
    if (const Parts *const parts = partsOf(field))
        parts->join(field, numbers);
}

QList<QLineEdit *> NumberParts::editsIn(const QWidget &editor)
{
    QList<QLineEdit *> edits = editor.findChildren<QLineEdit *>();
    const auto end = std::remove_if(edits.begin(), edits.end(), [](const QLineEdit *edit) {
        return edit->objectName() == QLatin1String("lineEdit");
    });
    edits.erase(end, edits.end()); // not the line that shows a whole matrix
    return edits;
}

QString NumberParts::shortest(float number)
{
    const bool isFull = std::abs(number) >= std::numeric_limits<float>::min(); // smaller ones have fewer digits
    QString text;
    for (int digits = isFull ? std::numeric_limits<float>::digits10 : 1;
         digits <= std::numeric_limits<float>::max_digits10; ++digits) {
        text = QString::number(static_cast<double>(number), 'g', digits);
        if (text.toFloat() == number)
            break;
    }
    return text;
}
