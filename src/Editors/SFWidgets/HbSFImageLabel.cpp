// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFImageLabel.h>

#include "support/PopupPlacement.h"

#include <QMouseEvent>
#include <QScreen>

namespace
{
constexpr int largestSide = 256;

/// QLabel keeps a press to itself, and so would never close.
class PopupLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void mousePressEvent(QMouseEvent *event) override { QWidget::mousePressEvent(event); }
};
} // namespace

HbSFImageLabel::HbSFImageLabel(int width, int height, QWidget *parent, const char *name)
    : QLabel(parent), m_popup(new PopupLabel(this, Qt::Popup))
{
    setObjectName(QString::fromUtf8(name));
    setScaledContents(true);
    setMouseTracking(true);
    setFixedSize(width, height);
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(tr("Image"));

    m_popup->setObjectName(QStringLiteral("pixmapLabel"));
    m_popup->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    m_popup->setScaledContents(true);
}

HbSFImageLabel::~HbSFImageLabel() = default;

void HbSFImageLabel::setPixmap(const QPixmap &pixmap)
{
    m_popup->setFixedSize(qMin(largestSide, pixmap.width()), qMin(largestSide, pixmap.height()));
    m_popup->setPixmap(pixmap);
    QLabel::setPixmap(pixmap);
}

void HbSFImageLabel::mouseMoveEvent(QMouseEvent *)
{
    if (m_popup->isVisible() || m_popup->size().isEmpty())
        return;
    QPoint position = mapToGlobal(pos()); // its place in the parent taken for one in itself, deliberately
    if (const QScreen *const here = screen())
        position = PopupPlacement::place(position, here->virtualGeometry(), m_popup->size(), QSize(0, 0));
    m_popup->move(position);
    m_popup->show();
}
