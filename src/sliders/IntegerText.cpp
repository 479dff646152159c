// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "IntegerText.h"

#include <QCoreApplication>

int IntegerText::baseOf(const QString &text)
{
    if (text.size() > 2 && text.startsWith(QLatin1String("0x")))
        return 16;
    if (text.size() == 2 && text.startsWith(QLatin1Char('0')))
        return 8;
    return 10;
}

QString IntegerText::prefix(int base)
{
    if (base == 16)
        return QStringLiteral("0x");
    return base == 8 ? QStringLiteral("0") : QString();
}

QString IntegerText::digits(qint64 number, int base)
{
    // Qt 5 writes negative numbers in base 8 and 16 as two's complement, Qt 6 does not
    const QString magnitude = QString::number(number < 0 ? 0 - static_cast<quint64>(number) : number, base);
    return number < 0 ? QLatin1Char('-') + magnitude : magnitude;
}

QString IntegerText::toolTip(qint64 number, int base)
{
    if (base == 10)
        return {};
    const QString text = base == 16 ? QCoreApplication::translate("HbSlider", "hexadecimal; decimal: %1")
                                    : QCoreApplication::translate("HbSlider", "octal; decimal: %1");
    return text.arg(number);
}
