// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBSFFLOATWIDGET_H
#define HBSFFLOATWIDGET_H

#include <HbSFieldWidget.h>

class HbRangeComponent;
class HbRealSlider;

/**
 * Edits an SoSFFloat with a slider and an edit; shown with 6 significant digits.
 *
 * Showing a field whose value lies beyond the range widens the range, even a fixed one.
 */
class HARBORAPI_EXPORT HbSFFloatWidget : public HbSFieldWidget
{
public:
    /// The float bounds of @p range are read once, here.
    HbSFFloatWidget(const char *label, const HbRangeComponent &range, HbFieldEditorCommandManager *manager,
                    QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~HbSFFloatWidget() override;

    void refresh() override;
    void applyChanges() override;
    bool edited() override;

private:
    HbRealSlider *m_slider;
};

#endif
