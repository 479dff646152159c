// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ValueText.h"

#include "FieldText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace
{
constexpr int textLimit = 400;

// as the library's editors have them
constexpr int margin = 4;
constexpr int spacing = 6;
constexpr int labelPointSize = 10;
} // namespace

ValueText::ValueText(const char *label, QWidget *parent) : HbFieldEditors(parent, {}), m_text(new QLineEdit(this))
{
    auto *const name = new QLabel(QString::fromUtf8(label), this);
    name->setObjectName(QStringLiteral("m_label"));
    QFont font = name->font();
    font.setPointSize(labelPointSize);
    name->setFont(font);
    m_text->setReadOnly(true);
    m_text->setFrame(false);
    QPalette palette = m_text->palette();
    palette.setBrush(QPalette::Base, Qt::transparent);
    m_text->setPalette(palette);

    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(spacing);
    row->addWidget(name);
    row->addWidget(m_text, 1);
}

bool ValueText::setField(SoField *field)
{
    m_field = field;
    return true;
}

void ValueText::refresh()
{
    const QString text = m_field ? FieldText::value(*m_field, textLimit) : QString();
    if (text == m_text->text())
        return; // keeps what is selected
    m_text->setText(text);
    m_text->setCursorPosition(0);
}
