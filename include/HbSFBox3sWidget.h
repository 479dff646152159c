// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFBOX3SWIDGET_H
#define HBSFBOX3SWIDGET_H

#include <HbPopupWidget.h>

/// Edits an SoSFBox3s in a grid whose first row is the minimum and whose second the maximum, which may lie below it.
class HARBORAPI_EXPORT HbSFBox3sWidget : public HbPopupWidget
{
public:
    HbSFBox3sWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbSFBox3sWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFBox3sWidget() override;

    void refresh() override;
    void applyChanges() override;
};

#endif
