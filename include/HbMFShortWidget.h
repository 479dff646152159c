// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFSHORTWIDGET_H
#define HBMFSHORTWIDGET_H

#include <HbMFLineWidget.h>

/// Edits an SoMFShort with a slider in each cell.
class HARBORAPI_EXPORT HbMFShortWidget : public HbMFLineWidget
{
public:
    HbMFShortWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbMFShortWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);
    ~HbMFShortWidget() override;

    bool checkField(SoField *field) override;

private:
    void initClass();
};

#endif
