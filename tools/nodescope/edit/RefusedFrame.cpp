// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RefusedFrame.h"

#include <QEvent>
#include <QPainter>

namespace
{
constexpr QRgb red = 0xffda4453; // seen on white and on black
}

RefusedFrame::RefusedFrame(QWidget *control) : QWidget(control)
{
    setObjectName(QStringLiteral("refusedFrame"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(control->rect());
    control->installEventFilter(this);
}

bool RefusedFrame::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return false;
}

void RefusedFrame::paintEvent(QPaintEvent *)
{
    const int width = fontMetrics().lineWidth() + 1;
    QPainter painter(this);
    const QRegion inner(rect().adjusted(width, width, -width, -width));
    painter.setClipRegion(QRegion(rect()) - inner);
    painter.fillRect(rect(), QColor::fromRgb(red));
}
