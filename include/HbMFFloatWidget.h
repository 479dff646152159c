// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFFLOATWIDGET_H
#define HBMFFLOATWIDGET_H

#include <HbMFLineWidget.h>

class HbRangeComponent;

/// Edits an SoMFFloat with a slider in each cell.
class HARBORAPI_EXPORT HbMFFloatWidget : public HbMFLineWidget
{
public:
    HbMFFloatWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbMFFloatWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);
    /// With the range of the slider editors; without, it is 0 to 10 and does not bound.
    HbMFFloatWidget(const char *fieldType, const HbRangeComponent &range, HbFieldEditorCommandManager *commandManager,
                    QWidget *parent, const char *name, Qt::WindowFlags flags);
    HbMFFloatWidget(const HbRangeComponent &range, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);
    ~HbMFFloatWidget() override;

    bool checkField(SoField *field) override;

private:
    void initClass();
};

#endif
