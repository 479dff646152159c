// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef POPUPPLACEMENT_H
#define POPUPPLACEMENT_H

#include <QPoint>
#include <QRect>

/// Where a popup goes on a screen.
namespace PopupPlacement
{
/// The top left corner of a popup of the size @p popup that hangs at @p corner: beyond the end of @p desktop, less
/// @p gap, it goes to the other side of the corner, by its own size and the gap.
inline QPoint place(QPoint corner, const QRect &desktop, const QSize &popup, const QSize &gap)
{
    const auto turned = [](int position, int end, int size, int gap) {
        return position > end - size - gap ? position - size - gap : position;
    };
    return {turned(corner.x(), desktop.x() + desktop.width(), popup.width(), gap.width()),
            turned(corner.y(), desktop.y() + desktop.height(), popup.height(), gap.height())};
}

/// @p position, moved as far as it takes to keep a popup of that size on @p screen; its start goes before its end.
inline QPoint kept(QPoint position, const QRect &screen, const QSize &popup)
{
    return {qMax(screen.x(), qMin(position.x(), screen.x() + screen.width() - popup.width())),
            qMax(screen.y(), qMin(position.y(), screen.y() + screen.height() - popup.height()))};
}
} // namespace PopupPlacement

#endif
