// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef QTCOMPAT_H
#define QTCOMPAT_H

#include <QSettings>
#include <QtGlobal>

#include <limits>

/// Every difference between Qt 5.15 and Qt 6 that the library meets.
namespace QtCompat
{
/// Qt 5 divides by zero when it paints a slider whose range is exactly 2^31 wide: widen that by one.
inline void makePaintable(int &minimum, int &maximum)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    if (qint64(maximum) - minimum != Q_INT64_C(1) << 31)
        return;
    if (maximum < std::numeric_limits<int>::max())
        ++maximum;
    else
        --minimum;
#else
    Q_UNUSED(minimum)
    Q_UNUSED(maximum)
#endif
}

/// Qt 5 reads INI files as Latin-1.
inline void readIniAsUtf8(QSettings &file)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    file.setIniCodec("UTF-8");
#else
    Q_UNUSED(file)
#endif
}
} // namespace QtCompat

#endif
