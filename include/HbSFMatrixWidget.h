// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFMATRIXWIDGET_H
#define HBSFMATRIXWIDGET_H

#include <HbPopupWidget.h>

/// Edits an SoSFMatrix in a grid of four by four, row by row.
class HARBORAPI_EXPORT HbSFMatrixWidget : public HbPopupWidget
{
public:
    HbSFMatrixWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                     Qt::WindowFlags flags);
    HbSFMatrixWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFMatrixWidget() override;

    void refresh() override;
    void applyChanges() override;
};

#endif
