// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFVec2i32Widget.h>

#include "support/FieldWatch.h"

#include <QSpinBox>

#include <Inventor/fields/SoSFVec2i32.h>

HbSFVec2i32Widget::HbSFVec2i32Widget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                                     const char *name, Qt::WindowFlags flags)
    : HbSF2iSpinBox(label, manager, parent, name ? name : "HbSFVec2i32Widget", flags)
{
    QString names[] = {QStringLiteral("x"), QStringLiteral("y")};
    setNameLabels(names);
    setLimits(2);
}

HbSFVec2i32Widget::HbSFVec2i32Widget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                     Qt::WindowFlags flags)
    : HbSFVec2i32Widget(nullptr, manager, parent, name, flags)
{
}

HbSFVec2i32Widget::~HbSFVec2i32Widget() = default;

void HbSFVec2i32Widget::refresh()
{
    if (const auto *const vector = fieldCast<SoSFVec2i32>(editedField())) {
        const SbVec2i32 value = vector->getValue(); // a copy: showing x commits, and y is still the old one
        m_spins[0]->setValue(value[0]);
        m_spins[1]->setValue(value[1]);
    }
    HbSFieldWidget::refresh();
}

void HbSFVec2i32Widget::applyChanges()
{
    if (auto *const vector = fieldCast<SoSFVec2i32>(editedField()))
        vector->setValue(m_spins[0]->value(), m_spins[1]->value());
}
