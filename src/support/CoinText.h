// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef COINTEXT_H
#define COINTEXT_H

#include <QByteArray>
#include <QString>

#include <Inventor/SbString.h>
#include <Inventor/fields/SoSFString.h>

/// Coin's texts to Qt's and back: strings are UTF-8, those of old files Latin-1.
namespace CoinText
{
inline QString toQString(const char *text, int length)
{
    const QByteArray bytes = QByteArray::fromRawData(text, length);
    const QString unicode = QString::fromUtf8(bytes);
    const bool isBroken = unicode.contains(QChar::ReplacementCharacter) && !bytes.contains("\xEF\xBF\xBD");
    return isBroken ? QString::fromLatin1(bytes) : unicode;
}

inline QString toQString(const SbString &text)
{
    return toQString(text.getString(), text.getLength());
}

inline SbString toSbString(const QString &text)
{
    return SbString(text.toUtf8().constData());
}

/// A field's value in the field's own notation.
inline QString ofField(SoField &field)
{
    if (field.isOfType(SoSFString::getClassTypeId())) { // Coin takes minutes for one of 10 MB
        QString value = toQString(static_cast<SoSFString &>(field).getValue());
        return QLatin1Char('"') + value.replace(QLatin1Char('"'), QLatin1String("\\\"")) + QLatin1Char('"');
    }
    SbString text;
    field.get(text);
    return toQString(text);
}
} // namespace CoinText

#endif
