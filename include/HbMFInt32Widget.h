// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFINT32WIDGET_H
#define HBMFINT32WIDGET_H

#include <HbMFLineWidget.h>

/// Edits an SoMFInt32 with a slider in each cell.
class HARBORAPI_EXPORT HbMFInt32Widget : public HbMFLineWidget
{
public:
    HbMFInt32Widget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbMFInt32Widget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);
    ~HbMFInt32Widget() override;

    bool checkField(SoField *field) override;

private:
    void initClass();
};

#endif
