// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFVEC4FWIDGET_H
#define HBSFVEC4FWIDGET_H

#include <HbSF4fBox.h>

/// Edits an SoSFVec4f: x, y, z and w.
class HARBORAPI_EXPORT HbSFVec4fWidget : public HbSF4fBox
{
public:
    HbSFVec4fWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbSFVec4fWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFVec4fWidget() override;

    void refresh() override;
    void applyChanges() override;
};

#endif
