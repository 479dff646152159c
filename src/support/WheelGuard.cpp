// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "WheelGuard.h"

#include <QEvent>
#include <QWidget>

namespace
{
class WheelGuard : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
            return false;
        event->ignore(); // so that it goes on to the parent
        return true;
    }
};
} // namespace

void ignoreWheelWithoutFocus(QWidget *widget)
{
    widget->setFocusPolicy(Qt::StrongFocus); // the wheel itself must not give the focus either
    widget->installEventFilter(new WheelGuard(widget));
}
