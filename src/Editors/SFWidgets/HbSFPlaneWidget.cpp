// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFPlaneWidget.h>

#include "Components.h"
#include "support/FieldWatch.h"

#include <Inventor/SbPlane.h>
#include <Inventor/fields/SoSFPlane.h>

HbSFPlaneWidget::HbSFPlaneWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbSF4fBox(label, manager, parent, name ? name : "HbSFPlaneWidget", flags)
{
    QString names[] = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("v")};
    setNameLabels(names);
}

HbSFPlaneWidget::HbSFPlaneWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbSFPlaneWidget(nullptr, manager, parent, name, flags)
{
}

HbSFPlaneWidget::~HbSFPlaneWidget() = default;

void HbSFPlaneWidget::refresh()
{
    if (const auto *const plane = fieldCast<SoSFPlane>(editedField())) {
        const SbPlane value = plane->getValue();
        const SbVec3f &normal = value.getNormal();
        const float numbers[] = {normal[0], normal[1], normal[2], value.getDistanceFromOrigin()};
        Components::show(m_edits, numbers);
    }
    HbSFieldWidget::refresh();
}

void HbSFPlaneWidget::applyChanges()
{
    auto *const plane = fieldCast<SoSFPlane>(editedField());
    if (!plane)
        return;
    const auto [x, y, z, distance] = Components::numbers(m_edits);
    plane->setValue(SbPlane(SbVec3f(x, y, z), distance));
}
