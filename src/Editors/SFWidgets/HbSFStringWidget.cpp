// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFStringWidget.h>

#include "coin/FieldReader.h"
#include "support/CoinText.h"
#include "support/FieldWatch.h"

#include <QLineEdit>

#include <Inventor/fields/SoSFString.h>

HbSFStringWidget::HbSFStringWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                                   const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSFStringWidget", flags), m_lineEdit(addLineEdit())
{
    commitOnReturn(m_lineEdit);
}

HbSFStringWidget::HbSFStringWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                   Qt::WindowFlags flags)
    : HbSFieldWidget(manager, parent, name ? name : "HbSFStringWidget", flags), m_lineEdit(addLineEdit())
{
    commitOnChange(m_lineEdit);
}

HbSFStringWidget::~HbSFStringWidget() = default;

void HbSFStringWidget::refresh()
{
    QString text;
    if (const auto *const string = fieldCast<SoSFString>(editedField()))
        text = CoinText::toQString(string->getValue());
    else if (SoField *const other = editedField())
        text = CoinText::ofField(*other);
    m_lineEdit->setText(text);
    m_lineEdit->setCursorPosition(0);
    HbSFieldWidget::refresh();
}

void HbSFStringWidget::applyChanges()
{
    const SbString text = CoinText::toSbString(m_lineEdit->text());
    if (auto *const string = fieldCast<SoSFString>(editedField()))
        string->setValue(text); // not parsed: quotes are part of it
    else if (SoField *const other = editedField())
        FieldReader::set(*other, text.getString());
}

bool HbSFStringWidget::edited()
{
    return m_lineEdit->isModified();
}
