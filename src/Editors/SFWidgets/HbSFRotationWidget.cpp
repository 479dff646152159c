// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFRotationWidget.h>

#include "Components.h"
#include "support/FieldWatch.h"

#include <Inventor/SbVec3f.h>
#include <Inventor/fields/SoSFRotation.h>

HbSFRotationWidget::HbSFRotationWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                                       const char *name, Qt::WindowFlags flags)
    : HbSF4fBox(label, manager, parent, name ? name : "HbSFRotationWidget", flags)
{
    nameComponents();
    // leaving the axis for the angle must not write half a rotation; deliberately, only with a label
    for (const QLineEdit *const edit : m_edits)
        disconnect(edit, &QLineEdit::editingFinished, this, &HbSFRotationWidget::setFocusLeaveEvent);
}

HbSFRotationWidget::HbSFRotationWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                       Qt::WindowFlags flags)
    : HbSF4fBox(manager, parent, name ? name : "HbSFRotationWidget", flags)
{
    nameComponents();
}

HbSFRotationWidget::~HbSFRotationWidget() = default;

void HbSFRotationWidget::nameComponents()
{
    QString names[] = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("radians")};
    setNameLabels(names);
}

void HbSFRotationWidget::refresh()
{
    if (const auto *const rotation = fieldCast<SoSFRotation>(editedField())) {
        SbVec3f axis;
        float radians;
        rotation->getValue(axis, radians);
        const float numbers[] = {axis[0], axis[1], axis[2], radians};
        Components::show(m_edits, numbers);
    }
    HbSFieldWidget::refresh();
}

void HbSFRotationWidget::applyChanges()
{
    auto *const rotation = fieldCast<SoSFRotation>(editedField());
    if (!rotation)
        return;
    const auto [x, y, z, radians] = Components::numbers(m_edits);
    rotation->setValue(SbVec3f(x, y, z), radians);
}

void HbSFRotationWidget::focusOutEvent(QFocusEvent *)
{
    if (edited())
        setFocusLeaveEvent();
}
