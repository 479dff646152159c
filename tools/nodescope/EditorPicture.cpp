// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "EditorPicture.h"

#include <QFrame>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace
{
QPixmap pictureOfGrid(QPushButton &button, QFrame &grid)
{
    const bool isOpen = grid.isVisible();
    if (!isOpen)
        button.click();
    const QPixmap picture = grid.grab();
    if (!isOpen)
        grid.close();
    return picture;
}

/// @p lower below @p upper, both at the right edge.
QPixmap stacked(const QPixmap &upper, const QPixmap &lower, const QColor &background)
{
    const qreal ratio = upper.devicePixelRatio();
    const int width = std::max(upper.width(), lower.width());
    QPixmap both(width, upper.height() + lower.height());
    both.fill(background);
    both.setDevicePixelRatio(ratio);
    QPainter painter(&both);
    painter.drawPixmap(QPointF(width - upper.width(), 0) / ratio, upper);
    painter.drawPixmap(QPointF(width - lower.width(), upper.height()) / ratio, lower);
    return both;
}
} // namespace

QPixmap pictureOf(QWidget &editor)
{
    auto *const button = editor.findChild<QPushButton *>(QStringLiteral("m_editButton"));
    auto *const grid = editor.findChild<QFrame *>(QStringLiteral("m_popupFrame"));
    const QPixmap row = editor.grab();
    if (!button || !grid)
        return row;
    return stacked(row, pictureOfGrid(*button, *grid), editor.palette().color(QPalette::Window));
}
