// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TABLEFIELDS_H
#define TABLEFIELDS_H

#include <QLocale>
#include <QSize>

#include <Inventor/fields/SoMFVec3f.h>

#include <memory>
#include <string>

/// What the tables show that are measured.
namespace TableFields
{
constexpr QSize windowSize(420, 600);
constexpr int thousand = 1000;
constexpr int million = 1000 * thousand;

/// Gives @p field @p count values, each what @p make gives for its index, and room for one more: each time that a
/// field outgrows its room Coin copies it.
template <class Field, class Make> void fill(Field &field, int count, const Make &make)
{
    field.setNum(count + 1);
    field.setNum(count);
    auto *const values = field.startEditing();
    for (int i = 0; i < count; ++i)
        values[i] = make(i);
    field.finishEditing();
}

/// Gives @p field other points each time.
inline void fillPoints(SoMFVec3f &field, int count)
{
    static float last = 0;
    const float first = ++last;
    fill(field, count, [=](int i) {
        const float x = first + 0.001f * static_cast<float>(i);
        return SbVec3f(x, x + 0.1f, -x);
    });
}

using Points = std::shared_ptr<SoMFVec3f>;

inline Points points(int count)
{
    auto field = std::make_shared<SoMFVec3f>();
    fillPoints(*field, count);
    return field;
}

/// "1,000 rows".
inline std::string counted(int count, const char *what)
{
    return QLocale(QLocale::English).toString(count).toStdString() + ' ' + what;
}
} // namespace TableFields

#endif
