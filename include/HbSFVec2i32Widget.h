// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFVEC2I32WIDGET_H
#define HBSFVEC2I32WIDGET_H

#include <HbSF2iSpinBox.h>

/**
 * Shows an SoSFVec2i32 in two spin boxes that take the value -1 only, deliberately.
 *
 * Whatever it commits is -1: use HbSFLineWidget where such a field is to be edited.
 */
class HARBORAPI_EXPORT HbSFVec2i32Widget : public HbSF2iSpinBox
{
public:
    HbSFVec2i32Widget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                      Qt::WindowFlags flags);
    HbSFVec2i32Widget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFVec2i32Widget() override;

    void refresh() override;
    void applyChanges() override;
};

#endif
