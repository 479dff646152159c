// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFVec2sWidget.h>

#include "support/FieldWatch.h"

#include <QSpinBox>

#include <Inventor/fields/SoSFVec2s.h>

HbSFVec2sWidget::HbSFVec2sWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbSF2iSpinBox(label, manager, parent, name ? name : "HbSFVec2sWidget", flags)
{
    QString names[] = {QStringLiteral("x"), QStringLiteral("y")};
    setNameLabels(names);
    setLimits(0);
}

HbSFVec2sWidget::HbSFVec2sWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbSFVec2sWidget(nullptr, manager, parent, name, flags)
{
}

HbSFVec2sWidget::~HbSFVec2sWidget() = default;

void HbSFVec2sWidget::refresh()
{
    if (const auto *const vector = fieldCast<SoSFVec2s>(editedField())) {
        const SbVec2s value = vector->getValue(); // a copy: showing x commits, and y is still the old one
        m_spins[0]->setValue(value[0]);
        m_spins[1]->setValue(value[1]);
    }
    HbSFieldWidget::refresh();
}

void HbSFVec2sWidget::applyChanges()
{
    if (auto *const vector = fieldCast<SoSFVec2s>(editedField()))
        vector->setValue(static_cast<short>(m_spins[0]->value()), static_cast<short>(m_spins[1]->value()));
}
