// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFPLANEWIDGET_H
#define HBSFPLANEWIDGET_H

#include <HbSF4fBox.h>

/// Edits an SoSFPlane: the normal, which the field normalises, and the distance from the origin.
class HARBORAPI_EXPORT HbSFPlaneWidget : public HbSF4fBox
{
public:
    HbSFPlaneWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbSFPlaneWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFPlaneWidget() override;

    void refresh() override;
    void applyChanges() override;
};

#endif
