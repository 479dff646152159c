// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFBoolWidget.h>

#include "Editors/FieldEditorSettings.h"
#include "support/FieldWatch.h"

#include <QCheckBox>
#include <QHBoxLayout>

#include <Inventor/fields/SoSFBool.h>

HbSFBoolWidget::HbSFBoolWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                               const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSFBoolWidget", flags),
      m_box(new QCheckBox(m_editionFrame))
{
    m_box->setObjectName(QStringLiteral("m_box"));
    m_box->setFixedSize(nscsettings_fieldEditor(QStringLiteral("SFBoolWidth")),
                        nscsettings_fieldEditor(QStringLiteral("SFComponentHeight")));
    m_editLayout->addWidget(m_box);
    centreEditionFrame();
    connect(m_box, &QCheckBox::clicked, this, &HbSFBoolWidget::setCommandValue);
}

HbSFBoolWidget::HbSFBoolWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                               Qt::WindowFlags flags)
    : HbSFBoolWidget(nullptr, manager, parent, name, flags)
{
}

HbSFBoolWidget::~HbSFBoolWidget() = default;

void HbSFBoolWidget::refresh()
{
    if (const auto *const truth = fieldCast<SoSFBool>(editedField()))
        m_box->setChecked(truth->getValue());
    HbSFieldWidget::refresh();
}

void HbSFBoolWidget::applyChanges()
{
    if (auto *const truth = fieldCast<SoSFBool>(editedField()))
        truth->setValue(m_box->isChecked());
}
