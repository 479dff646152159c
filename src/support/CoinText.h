// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef COINTEXT_H
#define COINTEXT_H

#include <QByteArray>
#include <QString>

#include <Inventor/SbString.h>
#include <Inventor/fields/SoField.h>

/// Coin's texts to Qt's and back: strings are UTF-8.
namespace CoinText
{
inline QString toQString(const SbString &text)
{
    return QString::fromUtf8(text.getString(), text.getLength());
}

inline SbString toSbString(const QString &text)
{
    return SbString(text.toUtf8().constData());
}

/// A field's value in the field's own notation.
inline QString ofField(SoField &field)
{
    SbString text;
    field.get(text);
    return toQString(text);
}
} // namespace CoinText

#endif
