// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFUINT32WIDGET_H
#define HBMFUINT32WIDGET_H

#include <HbMFLineWidget.h>

/// Edits an SoMFUInt32 with a slider in each cell.
class HARBORAPI_EXPORT HbMFUInt32Widget : public HbMFLineWidget
{
public:
    HbMFUInt32Widget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                     Qt::WindowFlags flags);
    HbMFUInt32Widget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                     const char *name, Qt::WindowFlags flags);
    ~HbMFUInt32Widget() override;

    bool checkField(SoField *field) override;

private:
    void initClass();
};

#endif
