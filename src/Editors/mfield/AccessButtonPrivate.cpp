// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <AccessButtonPrivate.h>

#include <QKeyEvent>
#include <QLineEdit>

AccessButtonPrivate::AccessButtonPrivate(QWidget *parent, const char *name) : QSpinBox(parent)
{
    setObjectName(name ? QString::fromUtf8(name) : QStringLiteral("AccessButtonPrivate"));
    lineEdit()->installEventFilter(this);
}

AccessButtonPrivate::AccessButtonPrivate(int minimum, int maximum, int step, QWidget *parent, const char *name)
    : AccessButtonPrivate(parent, name)
{
    setRange(minimum, maximum);
    setSingleStep(step);
}

void AccessButtonPrivate::setValue(int row)
{
    QSpinBox::setValue(row + 1);
}

bool AccessButtonPrivate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress)
        setFocus(Qt::MouseFocusReason);
    return QSpinBox::eventFilter(watched, event);
}

void AccessButtonPrivate::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT valueChanged(value());
    else
        QSpinBox::keyPressEvent(event);
}
