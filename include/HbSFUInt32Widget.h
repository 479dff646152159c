// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFUINT32WIDGET_H
#define HBSFUINT32WIDGET_H

#include <HbSFieldWidget.h>

class HbRangeComponent;
class HbUIntSlider;

/// Edits an SoSFUInt32 with a slider and an edit; hexadecimal, because the field writes its value so.
/// A negative minimum of the range counts as 0, a negative maximum as the large number of the same bits.
class HARBORAPI_EXPORT HbSFUInt32Widget : public HbSFieldWidget
{
public:
    /// The integer bounds of @p range are read once, here.
    HbSFUInt32Widget(const char *label, const HbRangeComponent &range, HbFieldEditorCommandManager *manager,
                     QWidget *parent, const char *name, Qt::WindowFlags flags);
    HbSFUInt32Widget(const HbRangeComponent &range, HbFieldEditorCommandManager *manager, QWidget *parent,
                     const char *name, Qt::WindowFlags flags);
    ~HbSFUInt32Widget() override;

    void refresh() override;
    void applyChanges() override;
    bool edited() override;

private:
    HbUIntSlider *m_slider;
};

#endif
