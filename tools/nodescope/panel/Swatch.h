// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SWATCH_H
#define SWATCH_H

#include <QColor>
#include <QRect>

class QPainter;
class QPalette;

namespace Swatch
{
/// A colour in a frame that is seen on light and on dark, and around light and dark colours.
void paint(QPainter &painter, const QRect &rect, const QColor &color, const QPalette &palette);
} // namespace Swatch

#endif
