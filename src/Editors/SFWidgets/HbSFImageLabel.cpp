// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFImageLabel.h>

#include "support/PopupPlacement.h"
#include "support/TranslatedTexts.h"

#include <QCoreApplication>
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
    setObjectName(name ? QString::fromUtf8(name) : QStringLiteral("HbSFImageLabel"));
    setScaledContents(true);
    setMouseTracking(true);
    setFixedSize(width, height);
    setFocusPolicy(Qt::NoFocus);
    (new TranslatedTexts(this))->set(this, "accessibleName", [] {
        return QCoreApplication::translate("HbSFImageLabel", "Image");
    });

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
