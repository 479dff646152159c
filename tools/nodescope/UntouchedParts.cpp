// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "UntouchedParts.h"

#include <HbFieldEditors.h>

#include <QLineEdit>

#include <Inventor/SbMatrix.h>
#include <Inventor/SbPlane.h>
#include <Inventor/fields/SoFields.h>

#include <algorithm>
#include <vector>

namespace
{
using Numbers = std::vector<float>;

/// How a value is made of the numbers that its editor shows, in that order.
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
    SbVec3f axis;
    float radians = 0;
    static_cast<const SoSFRotation &>(field).getValue(axis, radians);
    return {axis[0], axis[1], axis[2], radians};
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

QString shown(float number)
{
    return QString::number(static_cast<double>(number), 'g', 6);
}
/// As the editors read it.
float typed(const QString &text)
{
    bool converted = false;
    const float number = text.toFloat(&converted);
    return converted ? number : 0;
}
} // namespace

void keepUntouchedParts(const HbFieldEditors &editor, const SoField &before, SoField &edited)
{
    const Parts *const parts = partsOf(before);
    if (!parts)
        return;
    QList<QLineEdit *> edits = editor.findChildren<QLineEdit *>(); // in the order of their making, left to right
    edits.erase(std::remove_if(edits.begin(), edits.end(), [](const QLineEdit *edit) { return !edit->isEnabled(); }),
                edits.end()); // not the line that shows a whole matrix
    Numbers numbers = parts->split(before);
    if (edits.size() != static_cast<int>(numbers.size()))
        return;
    std::size_t untouched = 0;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const QString text = edits[static_cast<int>(i)]->text();
        if (text == shown(numbers[i]))
            ++untouched;
        else
            numbers[i] = typed(text);
    }
    if (untouched == numbers.size())
        edited.copyFrom(before);
    else if (untouched > 0)
        parts->join(edited, numbers);
}
