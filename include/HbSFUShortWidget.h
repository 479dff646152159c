// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFUSHORTWIDGET_H
#define HBSFUSHORTWIDGET_H

#include <HbSFieldWidget.h>

class HbRangeComponent;
class HbUIntSlider;

/// Edits an SoSFUShort with a slider and an edit; hexadecimal, because the field writes its value so.
/// A negative minimum of the range counts as 0, a negative maximum as the large number of the same bits. A value of
/// more than 16 bits is cut to its low 16.
class HARBORAPI_EXPORT HbSFUShortWidget : public HbSFieldWidget
{
public:
    /// The integer bounds of @p range are read once, here.
    HbSFUShortWidget(const char *label, const HbRangeComponent &range, HbFieldEditorCommandManager *manager,
                     QWidget *parent, const char *name, Qt::WindowFlags flags);
    HbSFUShortWidget(const HbRangeComponent &range, HbFieldEditorCommandManager *manager, QWidget *parent,
                     const char *name, Qt::WindowFlags flags);
    ~HbSFUShortWidget() override;

    void refresh() override;
    void applyChanges() override;
    bool edited() override;

private:
    HbUIntSlider *m_slider;
};

#endif
