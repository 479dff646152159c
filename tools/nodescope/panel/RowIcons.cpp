// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RowIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace
{
using Draw = void (*)(QPainter &painter, const QColor &colour, QIcon::State state);

constexpr qreal unit = 16; ///< the shapes are drawn in a square of this side
constexpr qreal line = 1.4;

class ShapeEngine : public QIconEngine
{
public:
    explicit ShapeEngine(Draw draw) : m_draw(draw) { }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const qreal side = qMin(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center() - QPointF(side, side) / 2);
        painter->scale(side / unit, side / unit);
        m_draw(*painter, QGuiApplication::palette().color(group, QPalette::ButtonText), state);
        painter->restore();
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine *clone() const override { return new ShapeEngine(m_draw); }

private:
    Draw m_draw;
};

void drawSwitch(QPainter &painter, const QColor &colour, QIcon::State state)
{
    const bool isOff = state == QIcon::On; // the button is checked while the field is ignored
    const QRectF track(1.5, 4.5, 13, 7);
    const qreal radius = track.height() / 2;
    const QPointF knob(isOff ? track.left() + radius : track.right() - radius, track.center().y());
    QPainterPath shape;
    shape.addRoundedRect(track, radius, radius);
    QPainterPath hole;
    hole.addEllipse(knob, radius - line, radius - line);
    painter.setPen(QPen(colour, line));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shape);
    painter.fillPath(isOff ? hole : shape.subtracted(hole), colour);
}

void drawArrowBack(QPainter &painter, const QColor &colour, QIcon::State)
{
    const QRectF turn(3, 3.5, 10, 10);
    constexpr int start = -60 * 16; // in sixteenths of a degree
    constexpr int span = 230 * 16;
    painter.setPen(QPen(colour, line, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(turn, start, span);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(QPolygonF({{0.6, 6.4}, {7, 6.4}, {3.4, 11}}));
}
} // namespace

QIcon RowIcons::ignoreField()
{
    static const QIcon icon(new ShapeEngine(drawSwitch));
    return icon;
}

QIcon RowIcons::setToDefault()
{
    static const QIcon icon(new ShapeEngine(drawArrowBack));
    return icon;
}
