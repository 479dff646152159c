// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFUSHORTWIDGET_H
#define HBMFUSHORTWIDGET_H

#include <HbMFLineWidget.h>

/// Edits an SoMFUShort with a slider in each cell.
class HARBORAPI_EXPORT HbMFUShortWidget : public HbMFLineWidget
{
public:
    HbMFUShortWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                     Qt::WindowFlags flags);
    HbMFUShortWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                     const char *name, Qt::WindowFlags flags);
    ~HbMFUShortWidget() override;

    bool checkField(SoField *field) override;

private:
    void initClass();
};

#endif
