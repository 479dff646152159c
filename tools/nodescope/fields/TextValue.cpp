// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TextValue.h"

#include "coin/FieldReader.h"

#include <QRegularExpression>
#include <QStringList>

#include <Inventor/SbString.h>
#include <Inventor/fields/SoFields.h>

#include <algorithm>
#include <cmath>

namespace
{
QString notation(SoField &field)
{
    SbString text;
    field.get(text);
    return QString::fromUtf8(text.getString(), text.getLength()).trimmed();
}

/// The words and numbers of a value, without what stands between them.
QStringList wordsOf(const QString &text)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,\\[\\]]+"));
    return text.split(separators, Qt::SkipEmptyParts);
}

double numberOf(const QString &word, bool *isNumber)
{
    if (word.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        return static_cast<double>(word.toULongLong(isNumber, 16));
    return word.toDouble(isNumber);
}

/// As written and as read: Coin stops reading where it understands no more, and rounds.
bool isSameWord(const QString &written, const QString &read)
{
    constexpr double rounding = 1e-5;
    bool areNumbers[2] = {};
    const double first = numberOf(written, &areNumbers[0]);
    const double second = numberOf(read, &areNumbers[1]);
    if (areNumbers[0] && areNumbers[1])
        return std::isfinite(first) && std::abs(first - second) <= rounding * std::abs(first);
    return written == read;
}

bool isReadWhole(SoField &field, const QString &text)
{
    const QStringList written = wordsOf(text);
    const QStringList read = wordsOf(notation(field));
    const bool isTurn = field.isOfType(SoSFRotation::getClassTypeId()) || field.isOfType(SoMFRotation::getClassTypeId())
        || field.isOfType(SoSFPlane::getClassTypeId()) || field.isOfType(SoMFPlane::getClassTypeId());
    const auto isFinite = [](const QString &word) {
        bool isNumber = false;
        return std::isfinite(numberOf(word, &isNumber)) && isNumber;
    };
    if (isTurn) // its axis is brought to length 1
        return written.size() == read.size() && std::all_of(written.begin(), written.end(), isFinite);
    return std::equal(written.begin(), written.end(), read.begin(), read.end(), isSameWord);
}
} // namespace

QString TextValue::of(SoField &field)
{
    if (field.isOfType(SoSFString::getClassTypeId()))
        return QString::fromUtf8(static_cast<SoSFString &>(field).getValue().getString());
    if (field.isOfType(SoSFName::getClassTypeId()))
        return QString::fromLatin1(static_cast<SoSFName &>(field).getValue().getString());
    return notation(field);
}

bool TextValue::set(SoField &field, const QString &text)
{
    if (field.isOfType(SoSFString::getClassTypeId())) {
        static_cast<SoSFString &>(field).setValue(text.toUtf8().constData());
        return true;
    }
    if (field.isOfType(SoSFName::getClassTypeId())) {
        const QByteArray name = text.toLatin1();
        if (!FieldReader::isSafe(field, name) || QString::fromLatin1(name) != text)
            return false;
        static_cast<SoSFName &>(field).setValue(SbName(name.constData()));
        return true;
    }
    return FieldReader::set(field, text.toUtf8().constData()) && isReadWhole(field, text);
}
