// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CAMERAROWS_H
#define CAMERAROWS_H

class HbFieldEditorCommandManager;
class HbFieldEditors;
class QString;
class QWidget;

/// Sets an opening angle (SoSFFloat, radians) to that of a usual lens.
HbFieldEditors *newLensRow(const QString &label, HbFieldEditorCommandManager *manager, QWidget *parent);

/// Turns an orientation (SoSFRotation) around the line of sight: by some degrees, or until the horizon is level.
HbFieldEditors *newRollRow(const QString &label, HbFieldEditorCommandManager *manager, QWidget *parent);

#endif
