// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFVEC2SWIDGET_H
#define HBSFVEC2SWIDGET_H

#include <HbSF2iSpinBox.h>

/// Edits an SoSFVec2s with two spin boxes.
class HARBORAPI_EXPORT HbSFVec2sWidget : public HbSF2iSpinBox
{
public:
    HbSFVec2sWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbSFVec2sWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFVec2sWidget() override;

    void refresh() override;
    void applyChanges() override;
};

#endif
