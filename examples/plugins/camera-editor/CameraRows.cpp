// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CameraRows.h"

#include "ButtonRow.h"

#include <QCoreApplication>

#include <Inventor/SbMatrix.h>
#include <Inventor/SbVec3f.h>
#include <Inventor/fields/SoSFFloat.h>
#include <Inventor/fields/SoSFRotation.h>

#include <cmath>

namespace
{
constexpr float halfFilmHeight = 12; // in millimetres, of a picture of 36 by 24
constexpr float step = 5;

QString tr(const char *text)
{
    return QCoreApplication::translate("Nsc_CameraEditor", text);
}

/// Turns about the line of sight, which is the camera's own z axis.
SbRotation rolled(const SbRotation &orientation, float degrees)
{
    constexpr float radians = 3.14159265F / 180;
    return SbRotation(SbVec3f(0, 0, 1), degrees * radians) * orientation;
}

/// The same line of sight with the picture's sides upright; as it is where the camera looks straight up or down.
SbRotation levelled(const SbRotation &orientation)
{
    SbVec3f backwards;
    orientation.multVec(SbVec3f(0, 0, 1), backwards);
    SbVec3f right = SbVec3f(0, 1, 0).cross(backwards);
    if (right.normalize() < 1e-4F)
        return orientation;
    const SbVec3f up = backwards.cross(right);
    return SbRotation(SbMatrix(right[0], right[1], right[2], 0, up[0], up[1], up[2], 0, //
                               backwards[0], backwards[1], backwards[2], 0, 0, 0, 0, 1));
}
} // namespace

HbFieldEditors *newLensRow(const QString &label, HbFieldEditorCommandManager *manager, QWidget *parent)
{
    auto *const row = new ButtonRow<SoSFFloat>(label, manager, parent);
    for (const int millimetres : {18, 24, 35, 50, 85, 135}) {
        const float angle = 2 * std::atan(halfFilmHeight / float(millimetres));
        row->addButton(
            QString::number(millimetres), tr("Lens of %1 mm").arg(millimetres), [angle](float) { return angle; },
            [angle](float value) { return std::abs(value - angle) < 1e-3F; });
    }
    return row;
}

HbFieldEditors *newRollRow(const QString &label, HbFieldEditorCommandManager *manager, QWidget *parent)
{
    auto *const row = new ButtonRow<SoSFRotation>(label, manager, parent);
    const QString degrees = QString::number(step) + QChar(0xb0);
    row->addButton(tr("Left %1").arg(degrees), tr("Roll the camera to the left"),
                   [](const SbRotation &orientation) { return rolled(orientation, step); });
    row->addButton(tr("Level"), tr("Make the horizon level"), levelled);
    row->addButton(tr("Right %1").arg(degrees), tr("Roll the camera to the right"),
                   [](const SbRotation &orientation) { return rolled(orientation, -step); });
    return row;
}
