// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFSHORTWIDGET_H
#define HBSFSHORTWIDGET_H

#include <HbSFieldWidget.h>

class HbRangeComponent;
class HbIntSlider;

/// Edits an SoSFShort with a slider and an edit. A value of more than 16 bits is left to the parser of the field.
class HARBORAPI_EXPORT HbSFShortWidget : public HbSFieldWidget
{
public:
    /// The integer bounds of @p range are read once, here.
    HbSFShortWidget(const char *label, const HbRangeComponent &range, HbFieldEditorCommandManager *manager,
                    QWidget *parent, const char *name, Qt::WindowFlags flags);
    HbSFShortWidget(const HbRangeComponent &range, HbFieldEditorCommandManager *manager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);
    ~HbSFShortWidget() override;

    void refresh() override;
    void applyChanges() override;
    bool edited() override;

private:
    HbIntSlider *m_slider;
};

#endif
