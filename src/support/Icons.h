// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ICONS_H
#define ICONS_H

#include <QPixmap>

/// The icons compiled into the library, 16 by 16 pixels; legible on light and dark palettes.
namespace Icons
{
QPixmap setToDefault();
QPixmap ignoreField();
QPixmap edit();
QPixmap addRow();
QPixmap deleteRow();
QPixmap moveUp();
QPixmap moveDown();
} // namespace Icons

#endif
