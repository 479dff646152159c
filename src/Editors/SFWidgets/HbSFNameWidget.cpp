// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFNameWidget.h>

#include "coin/FieldReader.h"
#include "support/CoinText.h"
#include "support/FieldWatch.h"

#include <QLineEdit>

HbSFNameWidget::HbSFNameWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                               const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSFNameWidget", flags), m_lineEdit(addLineEdit())
{
    commitOnReturn(m_lineEdit);
}

HbSFNameWidget::HbSFNameWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                               Qt::WindowFlags flags)
    : HbSFieldWidget(manager, parent, name ? name : "HbSFNameWidget", flags), m_lineEdit(addLineEdit())
{
    commitOnChange(m_lineEdit);
}

HbSFNameWidget::~HbSFNameWidget() = default;

void HbSFNameWidget::refresh()
{
    SoField *const edited = editedField();
    m_lineEdit->setText(edited ? CoinText::ofField(*edited) : QString());
    m_lineEdit->setCursorPosition(0);
    HbSFieldWidget::refresh();
}

void HbSFNameWidget::applyChanges()
{
    if (SoField *const edited = editedField())
        FieldReader::set(*edited, CoinText::toSbString(m_lineEdit->text()).getString());
}

bool HbSFNameWidget::edited()
{
    return m_lineEdit->isModified();
}
