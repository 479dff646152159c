// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbTablePopupLineEdit.h>

#include "support/TranslatedTexts.h"

#include <HbTablePopupWidget.h>

HbTablePopupLineEdit::HbTablePopupLineEdit(int index, HbTablePopupWidget *owner, QWidget *parent, const char *name)
    : QLineEdit(parent), m_owner(owner)
{
    setAlignment(Qt::AlignLeft);
    setObjectName(name ? QString::fromUtf8(name) : QStringLiteral("HbTablePopupLineEdit"));
    (new TranslatedTexts(this))->set(this, "accessibleName", [index] { return tr("Component %1").arg(index + 1); });
}

HbTablePopupLineEdit::~HbTablePopupLineEdit() = default;

void HbTablePopupLineEdit::setCurrentValue(QString)
{
    m_owner->reportPopupEdit();
}
