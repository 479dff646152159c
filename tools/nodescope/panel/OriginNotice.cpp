// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "OriginNotice.h"

#include "NodeOrigin.h"

OriginNotice::OriginNotice(QWidget *parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("originNotice"));
    setTextFormat(Qt::RichText);
    setWordWrap(true);
    setContentsMargins(6, 0, 6, 2);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(this, &QLabel::linkActivated, this, [this] { Q_EMIT fileWanted(m_fileName); });
    hide();
}

void OriginNotice::show(const NodeOrigin &origin)
{
    m_fileName = origin.fileName;
    QString text = tr("Read-only: %1.").arg(origin.obstacle()).toHtmlEscaped();
    if (!m_fileName.isEmpty())
        text += QStringLiteral(" <a href=\"file\">%1</a>").arg(tr("Open %1").arg(origin.name).toHtmlEscaped());
    setText(text);
    setVisible(origin.kind != NodeOrigin::Scene);
}
