// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFVec4fWidget.h>

#include "Components.h"
#include "support/FieldWatch.h"

#include <Inventor/fields/SoSFVec4f.h>

HbSFVec4fWidget::HbSFVec4fWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbSF4fBox(label, manager, parent, name ? name : "HbSFVec4fWidget", flags)
{
    QString names[] = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("w")};
    setNameLabels(names);
}

HbSFVec4fWidget::HbSFVec4fWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbSFVec4fWidget(nullptr, manager, parent, name, flags)
{
}

HbSFVec4fWidget::~HbSFVec4fWidget() = default;

void HbSFVec4fWidget::refresh()
{
    if (const auto *const vector = fieldCast<SoSFVec4f>(editedField())) {
        Components::show(m_edits, vector->getValue().getValue());
    }
    HbSFieldWidget::refresh();
}

void HbSFVec4fWidget::applyChanges()
{
    auto *const vector = fieldCast<SoSFVec4f>(editedField());
    if (!vector)
        return;
    const auto [x, y, z, w] = Components::numbers(m_edits);
    vector->setValue(x, y, z, w);
}
