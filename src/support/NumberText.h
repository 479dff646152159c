// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef NUMBERTEXT_H
#define NUMBERTEXT_H

#include <QString>

/// Numbers as text, the same in every locale.
namespace NumberText
{
/// 'g' with 6 significant digits.
inline QString fromFloat(float number)
{
    return QString::number(static_cast<double>(number), 'g', 6);
}

/// Text that does not convert, or only to what a float cannot hold, counts as 0.
inline float toFloat(const QString &text)
{
    bool converted = false;
    const float number = text.toFloat(&converted);
    return converted ? number : 0.0f;
}
} // namespace NumberText

#endif
