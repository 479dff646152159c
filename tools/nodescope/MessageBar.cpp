// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "MessageBar.h"

#include <QAccessible>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QToolButton>

namespace
{
constexpr int mostMessages = 500;
constexpr int linesShown = 6;
constexpr int sameMoment = 250; // milliseconds
} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QWidget(parent), m_last(new QLabel(this)), m_more(new QToolButton(this)), m_list(new QListWidget(this))
{
    m_last->setTextFormat(Qt::PlainText);
    m_last->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_last->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_more->setCheckable(true);
    m_more->setAutoRaise(true);
    QSizePolicy keepsPlace = m_more->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true); // a first message moves nothing above
    m_more->setSizePolicy(keepsPlace);
    m_more->hide();
    m_list->setAccessibleName(tr("Messages"));
    m_list->setWordWrap(true);
    m_list->setFixedHeight(linesShown * fontMetrics().lineSpacing());
    m_list->hide();
    connect(m_more, &QToolButton::toggled, m_list, &QListWidget::setVisible);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(4, 0, 0, 0);
    layout->addWidget(m_last, 0, 0);
    layout->addWidget(m_more, 0, 1);
    layout->addWidget(m_list, 1, 0, 1, 2);
    layout->setColumnStretch(0, 1);
}

void MessageBar::add(const QString &text)
{
    const int count = m_list->count();
    m_sinceAdded.start();
    m_isCurrent = true;
    if (count > 0 && m_list->item(count - 1)->text() == text) {
        showLast();
        return; // what is wrong in a picture is said again with every frame
    }
    if (count == mostMessages)
        delete m_list->takeItem(0);
    m_list->addItem(text);
    m_list->scrollToBottom();
    m_more->setText(m_list->count() == 1 ? tr("1 message") : tr("%1 messages").arg(m_list->count()));
    m_more->show();
    showLast();
    QAccessibleEvent event(m_last, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void MessageBar::outdate()
{
    if (!m_isCurrent || m_sinceAdded.elapsed() < sameMoment)
        return;
    m_isCurrent = false;
    showText({});
}

/// Paints without the event loop, in which the user could start something else.
void MessageBar::showProgress(const QString &text)
{
    showText(text);
    m_last->repaint();
}

void MessageBar::endProgress()
{
    showText({});
    showLast();
}

QStringList MessageBar::messages() const
{
    QStringList texts;
    for (int i = 0; i < m_list->count(); ++i)
        texts.append(m_list->item(i)->text());
    return texts;
}

void MessageBar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    showLast();
}

void MessageBar::showLast()
{
    if (m_isCurrent)
        showText(m_list->item(m_list->count() - 1)->text());
}

void MessageBar::showText(const QString &text)
{
    m_last->setText(fontMetrics().elidedText(text, Qt::ElideMiddle, width() - m_more->sizeHint().width() - 16));
    m_last->setToolTip(text);
    m_last->setAccessibleName(text);
}
