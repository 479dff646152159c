// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldRows.h"

#include "FieldSnapshot.h"
#include "OneNotification.h"

#include <Inventor/SoPath.h>
#include <Inventor/engines/SoEngine.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoNode.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

namespace
{
template <class... Fields> struct Types {
};
using Vectors = Types<SoMFColor, SoMFColorRGBA, SoMFVec2b, SoMFVec2d, SoMFVec2f, SoMFVec2i32, SoMFVec2s, SoMFVec3b,
                      SoMFVec3d, SoMFVec3f, SoMFVec3i32, SoMFVec3s, SoMFVec4b, SoMFVec4d, SoMFVec4f, SoMFVec4i32,
                      SoMFVec4s, SoMFVec4ub, SoMFVec4ui32, SoMFVec4us>;
using Others = Types<SoMFBool, SoMFDouble, SoMFEngine, SoMFEnum, SoMFFloat, SoMFInt32, SoMFMatrix, SoMFName, SoMFNode,
                     SoMFPath, SoMFPlane, SoMFRotation, SoMFShort, SoMFString, SoMFTime, SoMFUInt32, SoMFUShort>;

/// Calls @p visit with the field as what it is; false for a type from elsewhere.
template <class Field, class... Fields, class Visit> bool visitAs(Types<Fields...>, Field &field, const Visit &visit)
{
    const auto tryOne = [&](auto *type) {
        using Known = std::remove_pointer_t<decltype(type)>;
        using Typed = std::conditional_t<std::is_const_v<Field>, const Known, Known>;
        if (!field.isOfType(Known::getClassTypeId()))
            return false;
        visit(static_cast<Typed &>(field));
        return true;
    };
    return (tryOne(static_cast<Fields *>(nullptr)) || ...);
}

template <class Field, class Visit> void visitAny(Field &field, const Visit &visit)
{
    if (!visitAs(Vectors(), field, visit))
        visitAs(Others(), field, visit);
}

template <class Value> void clear(Value &value)
{
    if constexpr (std::is_same_v<Value, SbRotation> || std::is_same_v<Value, SbMatrix>)
        value = Value::identity();
    else if constexpr (std::is_same_v<Value, SbPlane>)
        value = SbPlane(SbVec3f(0, 0, 1), 0);
    else if constexpr (std::is_trivially_copyable_v<Value>)
        std::memset(static_cast<void *>(&value), 0, sizeof value);
    else
        value = Value();
}

/// Moves the values from @p from on to @p to, to the end of a field that gets longer or shorter by as much.
template <class Field> void makeRoom(Field &field, int from, int to, int total)
{
    if (from == to)
        return; // a string that is assigned to itself loses its first letter
    using Value = std::remove_reference_t<decltype(*field.startEditing())>;
    field.finishEditing();
    if constexpr (std::is_pointer_v<Value>) { // counted references
        if (to > from)
            field.insertSpace(from, to - from);
        else if (to < from)
            field.deleteValues(to, from - to);
    } else { // Coin would call a virtual function per value that moves
        if (to > from)
            field.setNum(total + to - from);
        Value *const values = field.startEditing();
        if (to > from)
            std::move_backward(values + from, values + total, values + total + to - from);
        else
            std::move(values + from, values + total, values + to);
        field.finishEditing();
        if (to < from)
            field.setNum(total + to - from);
    }
}

/// "0.1" and not "0.100000001", which are the same float.
template <class Number> QString shortest(Number number)
{
    constexpr int fewest = 6; // as many as are shown
    for (int digits = fewest; digits < std::numeric_limits<Number>::max_digits10; ++digits) {
        const QString text = QString::number(double(number), 'g', digits);
        if (static_cast<Number>(text.toDouble()) == number)
            return text;
    }
    return QString::number(double(number), 'g', std::numeric_limits<Number>::max_digits10);
}

/// The numbers of which a value consists, in the order of a table's columns.
template <class Value> QStringList floatsOf(const Value &value)
{
    QStringList texts;
    const auto add = [&texts](auto number) { texts += shortest(number); };
    if constexpr (std::is_floating_point_v<Value>) {
        add(value);
    } else if constexpr (std::is_same_v<Value, SbMatrix>) {
        std::for_each(value[0], value[0] + 16, add);
    } else if constexpr (std::is_same_v<Value, SbRotation>) {
        std::for_each(value.getValue(), value.getValue() + 4, add);
    } else if constexpr (std::is_same_v<Value, SbPlane>) {
        std::for_each(value.getNormal().getValue(), value.getNormal().getValue() + 3, add);
        add(value.getDistanceFromOrigin());
    }
    return texts;
}

std::shared_ptr<SoMField> newField(const SoMField &like)
{
    return std::shared_ptr<SoMField>(static_cast<SoMField *>(like.getTypeId().createInstance()));
}
} // namespace

std::shared_ptr<SoMField> FieldRows::copy(const SoMField &field, int row, int count)
{
    const auto rows = newField(field);
    const int start = std::clamp(row, 0, field.getNum());
    const int number = std::clamp(count, 0, field.getNum() - start);
    visitAny(field, [&](const auto &typed) {
        using Field = std::remove_const_t<std::remove_reference_t<decltype(typed)>>;
        auto &target = static_cast<Field &>(*rows);
        target.setNum(0);
        if (number > 0)
            target.setValues(0, number, typed.getValues(start));
    });
    return rows;
}

std::shared_ptr<SoMField> FieldRows::zeros(const SoMField &like, int count)
{
    const auto rows = newField(like);
    rows->setNum(0);
    visitAny(*rows, [&](auto &typed) {
        typed.insertSpace(0, count); // which sets references to null
        using Value = std::remove_reference_t<decltype(*typed.startEditing())>;
        if constexpr (!std::is_pointer_v<Value>) {
            Value *const values = typed.startEditing();
            std::for_each(values, values + count, [](Value &value) { clear(value); });
        }
        typed.finishEditing();
    });
    return rows;
}

void FieldRows::replace(SoMField &field, int row, int count, const SoMField &values)
{
    const int total = field.getNum();
    const int number = values.getNum();
    if (row < 0 || count < 0 || row + count > total)
        return; // somebody else has taken the values away
    const OneNotification once(field);
    visitAny(field, [&](auto &typed) {
        using Field = std::remove_reference_t<decltype(typed)>;
        makeRoom(typed, row + count, row + number, total);
        if (number > 0)
            typed.setValues(row, number, static_cast<const Field &>(values).getValues(0));
    });
}

bool FieldRows::areSame(const SoMField &first, const SoMField &second)
{
    return FieldSnapshot(first).isSameValue(FieldSnapshot(second));
}

bool FieldRows::areValues(const SoMField &field)
{
    if (field.isOfType(SoMFEnum::getClassTypeId()))
        return false; // the names that its numbers have are the field's
    bool are = false;
    visitAny(field, [&](const auto &typed) { are = !std::is_pointer_v<std::decay_t<decltype(*typed.getValues(0))>>; });
    return are;
}

bool FieldRows::areWhole(const SoMField &field)
{
    bool are = false;
    visitAs(Vectors(), field,
            [&](const auto &typed) { are = std::is_integral_v<std::decay_t<decltype((*typed.getValues(0))[0])>>; });
    visitAs(Others(), field,
            [&](const auto &typed) { are = std::is_integral_v<std::decay_t<decltype(*typed.getValues(0))>>; });
    return are;
}

QStringList FieldRows::numberTexts(const SoMField &field, int row)
{
    QStringList texts;
    if (row < 0 || row >= field.getNum())
        return texts;
    const bool isVector = visitAs(Vectors(), field, [&](const auto &typed) {
        const auto &value = *typed.getValues(row);
        using Component = std::decay_t<decltype(value[0])>;
        if constexpr (std::is_floating_point_v<Component>)
            for (std::size_t i = 0; i < sizeof value / sizeof(Component); ++i)
                texts += shortest(value[static_cast<int>(i)]);
    });
    if (!isVector)
        visitAs(Others(), field, [&](const auto &typed) { texts = floatsOf(*typed.getValues(row)); });
    return texts;
}

bool FieldRows::swapColumns(SoMField &field, int first, int second)
{
    bool done = false;
    visitAs(Vectors(), field, [&](auto &typed) {
        using Value = std::remove_pointer_t<decltype(typed.startEditing())>;
        constexpr int columns = static_cast<int>(sizeof(Value) / sizeof(std::declval<Value &>()[0]));
        done = first >= 0 && second >= 0 && first < columns && second < columns;
        if (!done)
            return;
        Value *const values = typed.startEditing();
        for (int row = 0; row < typed.getNum(); ++row)
            std::swap(values[row][first], values[row][second]);
        typed.finishEditing();
    });
    return done;
}
