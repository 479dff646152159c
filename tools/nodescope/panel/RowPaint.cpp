// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RowPaint.h"

#include "RowShape.h"
#include "Swatch.h"

#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionFocusRect>
#include <QTextDocument>
#include <QToolTip>

namespace
{
bool paintCut(QLabel &label)
{
    const QFontMetrics metrics = label.fontMetrics();
    const QRect room = label.contentsRect();
    if (Qt::mightBeRichText(label.text()) || metrics.horizontalAdvance(label.text()) <= room.width())
        return false;
    QPainter painter(&label);
    label.style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, label.palette(), label.isEnabled(),
                                metrics.elidedText(label.text(), Qt::ElideMiddle, room.width()),
                                label.foregroundRole());
    return true;
}

bool paintSwatch(QPushButton &button)
{
    const QImage icon = button.icon().pixmap(button.iconSize()).toImage();
    if (icon.isNull())
        return false;
    QPainter painter(&button);
    Swatch::paint(painter, button.rect(), icon.pixelColor(icon.rect().center()), button.palette());
    if (button.hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(&button);
        button.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &button);
    }
    return true;
}

/// A tool tip of the edit's own goes first.
bool tellWhole(const QLineEdit &edit, const QHelpEvent &help)
{
    const int frame
        = 2 * (edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth) + edit.fontMetrics().averageCharWidth() / 2);
    const bool isCut = edit.fontMetrics().horizontalAdvance(edit.text()) > edit.width() - frame;
    if (!isCut || !edit.toolTip().isEmpty())
        return false;
    QToolTip::showText(help.globalPos(), edit.text().left(200));
    return true;
}
} // namespace

void RowPaint::watch(const RowShape &row)
{
    for (QWidget *const control : row.controls()) {
        const bool isSwatch = control->objectName() == QLatin1String("m_colorDisp");
        if (control == row.label() || isSwatch || qobject_cast<QLineEdit *>(control))
            control->installEventFilter(this);
    }
}

bool RowPaint::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        if (auto *const label = qobject_cast<QLabel *>(watched))
            return paintCut(*label);
        auto *const swatch = qobject_cast<QPushButton *>(watched);
        return swatch && paintSwatch(*swatch);
    }
    const auto *const edit = event->type() == QEvent::ToolTip ? qobject_cast<QLineEdit *>(watched) : nullptr;
    return edit && tellWhole(*edit, static_cast<QHelpEvent &>(*event));
}
