// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFEnumWidget.h>

#include "support/FieldWatch.h"
#include "support/WheelGuard.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

#include <Inventor/SbName.h>
#include <Inventor/fields/SoSFEnum.h>

HbSFEnumWidget::HbSFEnumWidget(const char *label, HbFieldEditorCommandManager *manager, int count, const SbName *names,
                               QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSFEnumWidget", flags),
      m_comboBox(new QComboBox(m_editionFrame))
{
    m_comboBox->setObjectName(QStringLiteral("comboBox"));
    m_comboBox->setAccessibleName(m_label->text());
    ignoreWheelWithoutFocus(m_comboBox);
    m_editLayout->addWidget(m_comboBox, 1);
    for (int i = 0; i < count; ++i)
        m_comboBox->addItem(QString::fromLatin1(names[i].getString()));
    connect(m_comboBox, QOverload<int>::of(&QComboBox::activated), this, &HbSFEnumWidget::setCommandValue);
}

HbSFEnumWidget::HbSFEnumWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                               Qt::WindowFlags flags)
    : HbSFEnumWidget(nullptr, manager, 0, nullptr, parent, name, flags)
{
}

HbSFEnumWidget::~HbSFEnumWidget() = default;

void HbSFEnumWidget::refresh()
{
    SbString name;
    if (SoField *const edited = editedField())
        edited->get(name);
    const QString text = QString::fromLatin1(name.getString());
    const int entry = m_comboBox->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (entry >= 0)
        m_comboBox->setCurrentIndex(entry);
    else if (m_comboBox->isEditable())
        m_comboBox->setEditText(text);
    else
        m_comboBox->setItemText(m_comboBox->currentIndex(), text); // an unknown value takes over, deliberately
    HbSFieldWidget::refresh();
}

void HbSFEnumWidget::applyChanges()
{
    if (auto *const choice = fieldCast<SoSFEnum>(editedField()))
        choice->setValue(SbName(m_comboBox->currentText().toLatin1().constData()));
}
