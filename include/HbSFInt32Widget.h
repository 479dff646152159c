// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFINT32WIDGET_H
#define HBSFINT32WIDGET_H

#include <HbSFieldWidget.h>

class HbRangeComponent;
class HbIntSlider;

/// Edits an SoSFInt32 with a slider and an edit.
class HARBORAPI_EXPORT HbSFInt32Widget : public HbSFieldWidget
{
public:
    /// The integer bounds of @p range are read once, here.
    HbSFInt32Widget(const char *label, const HbRangeComponent &range, HbFieldEditorCommandManager *manager,
                    QWidget *parent, const char *name, Qt::WindowFlags flags);
    HbSFInt32Widget(const HbRangeComponent &range, HbFieldEditorCommandManager *manager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);
    ~HbSFInt32Widget() override;

    void refresh() override;
    void applyChanges() override;
    bool edited() override;

private:
    HbIntSlider *m_slider;
};

#endif
