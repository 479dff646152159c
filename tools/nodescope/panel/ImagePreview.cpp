// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ImagePreview.h"

#include <QCursor>
#include <QEvent>
#include <QLabel>

void ImagePreview::watchIn(QWidget &editor)
{
    auto *const popup = editor.findChild<QLabel *>(QStringLiteral("pixmapLabel"));
    if (popup && popup->parentWidget())
        new ImagePreview(*popup->parentWidget(), *popup);
}

ImagePreview::ImagePreview(QWidget &thumbnail, QWidget &popup)
    : QObject(&thumbnail), m_thumbnail(thumbnail), m_popup(popup)
{
    popup.setMouseTracking(true); // it grabs the mouse
    popup.installEventFilter(this);
    thumbnail.installEventFilter(this);
}

bool ImagePreview::eventFilter(QObject *, QEvent *event)
{
    const bool isMove = event->type() == QEvent::MouseMove || event->type() == QEvent::Enter;
    const bool isLeaving = event->type() == QEvent::Leave || event->type() == QEvent::HoverLeave;
    if (!m_popup.isVisible() || (!isMove && !isLeaving))
        return false;
    if (!m_thumbnail.rect().contains(m_thumbnail.mapFromGlobal(QCursor::pos())))
        m_popup.hide();
    return false;
}
