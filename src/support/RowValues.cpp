// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RowValues.h"

#include "CoinText.h"
#include "coin/FieldReader.h"

#include <Inventor/SbMatrix.h>
#include <Inventor/SbPlane.h>
#include <Inventor/SbRotation.h>
#include <Inventor/SoPath.h>
#include <Inventor/engines/SoEngine.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoNode.h>

#include <algorithm>
#include <cstring>
#include <type_traits>

namespace
{
/// Silent while it lives; at its end the field notifies once.
class OneNotification
{
public:
    explicit OneNotification(SoMField &field) : m_field(field), m_wasEnabled(field.enableNotify(FALSE)) { }
    ~OneNotification()
    {
        m_field.enableNotify(m_wasEnabled);
        m_field.setDefault(FALSE);
        m_field.touch();
    }
    Q_DISABLE_COPY(OneNotification)

private:
    SoMField &m_field;
    SbBool m_wasEnabled;
};

template <class... Fields> struct Types {
};
using Plain
    = Types<SoMFBool, SoMFColor, SoMFColorRGBA, SoMFDouble, SoMFEnum, SoMFFloat, SoMFInt32, SoMFMatrix, SoMFName,
            SoMFPlane, SoMFRotation, SoMFShort, SoMFString, SoMFTime, SoMFUInt32, SoMFUShort, SoMFVec2b, SoMFVec2d,
            SoMFVec2f, SoMFVec2i32, SoMFVec2s, SoMFVec3b, SoMFVec3d, SoMFVec3f, SoMFVec3i32, SoMFVec3s, SoMFVec4b,
            SoMFVec4d, SoMFVec4f, SoMFVec4i32, SoMFVec4s, SoMFVec4ub, SoMFVec4ui32, SoMFVec4us>;
/// Their values are counted references.
using Objects = Types<SoMFEngine, SoMFNode, SoMFPath>;

/// Calls @p visit with the field as what it is; false for a type from elsewhere.
template <class... Fields, class Visit> bool visitAs(Types<Fields...>, SoMField &field, const Visit &visit)
{
    const auto tryOne = [&](auto *type) {
        using Field = std::remove_pointer_t<decltype(type)>;
        if (!field.isOfType(Field::getClassTypeId()))
            return false;
        visit(static_cast<Field &>(field));
        return true;
    };
    return (tryOne(static_cast<Fields *>(nullptr)) || ...);
}

template <class Value> void setZero(Value &value)
{
    static_assert(std::is_trivially_copyable_v<Value>, "a type with its own idea of zero");
    std::memset(static_cast<void *>(&value), 0, sizeof value);
}
void setZero(SbString &value)
{
    value = SbString();
}
void setZero(SbName &value)
{
    value = SbName::empty();
}
void setZero(SbRotation &value)
{
    value = SbRotation::identity();
}
void setZero(SbMatrix &value)
{
    value = SbMatrix::identity();
}
void setZero(SbPlane &value)
{
    value = SbPlane(SbVec3f(0, 0, 1), 0);
}

QString quoted(QString text)
{
    return QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\\\"")) + QLatin1Char('"');
}
} // namespace

bool RowValues::contains(const SoMField &field, int row)
{
    return row >= 0 && row < field.getNum();
}

void RowValues::swap(SoMField &field, int first, int second)
{
    if (!contains(field, first) || !contains(field, second) || first == second)
        return;
    const OneNotification once(field);
    const bool known = visitAs(Plain(), field, [&](auto &typed) {
        auto *const values = typed.startEditing();
        std::swap(values[first], values[second]);
        typed.finishEditing();
    });
    const bool object = !known && visitAs(Objects(), field, [&](auto &typed) {
        auto *const held = typed[first];
        if (held)
            held->ref();
        typed.set1Value(first, typed[second]);
        typed.set1Value(second, held);
        if (held)
            held->unref();
    });
    if (known || object)
        return;
    SbString firstText;
    SbString secondText;
    field.get1(first, firstText);
    field.get1(second, secondText);
    field.set1(first, secondText.getString());
    field.set1(second, firstText.getString());
}

// Coin's own insertSpace() and deleteValues() call a virtual function per value that moves.
bool RowValues::insert(SoMField &field, int row)
{
    const int count = field.getNum();
    if (row < 0 || row > count)
        return false;
    const OneNotification once(field);
    const bool known = visitAs(Plain(), field, [&](auto &typed) {
        typed.setNum(count + 1);
        auto *const values = typed.startEditing();
        std::move_backward(values + row, values + count, values + count + 1);
        setZero(values[row]);
        typed.finishEditing();
    });
    if (known)
        return true;
    field.insertSpace(row, 1);
    if (!visitAs(Objects(), field, [row](auto &typed) { typed.set1Value(row, nullptr); }))
        field.set1(row, "\"\"");
    return true;
}

void RowValues::remove(SoMField &field, int row, int count)
{
    if (!contains(field, row) || count <= 0)
        return;
    const int total = field.getNum();
    const int behind = row + std::min(count, total - row);
    const OneNotification once(field);
    const bool known = visitAs(Plain(), field, [&](auto &typed) {
        auto *const values = typed.startEditing();
        std::move(values + behind, values + total, values + row);
        typed.finishEditing();
        typed.setNum(total - (behind - row));
    });
    if (!known)
        field.deleteValues(row, behind - row);
}

QString RowValues::text(SoMField &field, int row)
{
    if (!contains(field, row))
        return {};
    if (field.isOfType(SoMFString::getClassTypeId())) // Coin's own text takes minutes for one of 10 MB
        return quoted(CoinText::toQString(static_cast<const SoMFString &>(field)[row]));
    SbString text;
    field.get1(row, text);
    return CoinText::toQString(text);
}

bool RowValues::holdsObjects(const SoMField &field)
{
    return field.isOfType(SoMFNode::getClassTypeId()) || field.isOfType(SoMFEngine::getClassTypeId())
        || field.isOfType(SoMFPath::getClassTypeId());
}

bool RowValues::isLongString(const SoMField &field, int row)
{
    constexpr std::size_t few = 4096; // bytes
    return field.isOfType(SoMFString::getClassTypeId()) && contains(field, row)
        && strnlen(static_cast<const SoMFString &>(field)[row].getString(), few) == few;
}

QString RowValues::startOfString(const SoMFString &field, int row, int limit)
{
    if (!contains(field, row))
        return {};
    const SbString &value = field[row];
    auto bytes = static_cast<int>(strnlen(
        value.getString(), std::size_t(4) * static_cast<std::size_t>(limit))); // no character of UTF-8 is longer
    const auto isWithinCharacter = [&](int end) { return (value.getString()[end] & 0xC0) == 0x80; };
    for (int longest = 3; isWithinCharacter(bytes) && longest > 0; --longest)
        --bytes;
    return CoinText::toQString(value.getString(), bytes);
}

QString RowValues::startOfStringText(const SoMFString &field, int row, int limit)
{
    return contains(field, row) ? quoted(startOfString(field, row, limit)) : QString();
}

bool RowValues::setText(SoMField &field, int row, const QString &text)
{
    return contains(field, row) && FieldReader::set1(field, row, CoinText::toSbString(text).getString());
}
