// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TitledArea.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

TitledArea::TitledArea(QWidget *parent) : QWidget(parent), m_title(new QLabel(this)), m_area(new QScrollArea(this))
{
    QFont font = m_title->font();
    font.setBold(true);
    m_title->setFont(font);
    m_title->setContentsMargins(6, 6, 6, 2);
    m_title->setTextFormat(Qt::PlainText);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long name takes no room from the view
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_title);
    layout->addWidget(m_area, 1);
}
