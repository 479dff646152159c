// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RowLink.h"

#include <QHBoxLayout>
#include <QToolButton>

RowLink::RowLink(QWidget *parent) : QWidget(parent), m_button(new QToolButton(this))
{
    m_button->setObjectName(QStringLiteral("rowLink"));
    m_button->setAutoRaise(true);
    m_button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto *const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_button);
    line->addStretch(1);
    connect(m_button, &QToolButton::clicked, this, &RowLink::clicked);
}

void RowLink::setText(const QString &text, const QString &toolTip)
{
    m_button->setText(text);
    m_button->setToolTip(toolTip);
    m_button->setAccessibleDescription(toolTip);
}

void RowLink::setLeading(bool leading)
{
    m_button->setEnabled(leading);
    m_button->setFocusPolicy(leading ? Qt::TabFocus : Qt::NoFocus);
    QPalette palette;
    palette.setColor(QPalette::ButtonText, QWidget::palette().color(QPalette::Link));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QWidget::palette().color(QPalette::WindowText));
    m_button->setPalette(palette);
}

void RowLink::setIndent(int width)
{
    layout()->setContentsMargins(width, 0, 0, 0);
}
