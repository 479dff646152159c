// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Swatch.h"

#include <QPainter>
#include <QPalette>

void Swatch::paint(QPainter &painter, const QRect &rect, const QColor &color, const QPalette &palette)
{
    painter.fillRect(rect, palette.color(QPalette::WindowText));
    painter.fillRect(rect.adjusted(1, 1, -1, -1), palette.color(QPalette::Window));
    painter.fillRect(rect.adjusted(2, 2, -2, -2), color);
}
