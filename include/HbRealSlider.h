// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBREALSLIDER_H
#define HBREALSLIDER_H

#include <HbSlider.h>

class QDoubleValidator;

/// A slider for single-precision numbers, shown with 6 significant digits; the slider has 100 steps.
class HARBORAPI_EXPORT HbRealSlider : public HbSlider
{
public:
    HbRealSlider(SliderParentType parentType, HbFieldEditors *editor, HbFieldEditorCommandManager *commandManager,
                 QWidget *parent, int row, int col);
    ~HbRealSlider() override;

    void updateEdit() override;
    /// Text that is no number, or none that a float can hold, counts as 0.
    void setValueFromEdit() override;
    void setValueFromSlider(int position) override;
    void saveDataFromField() override;

    /// The highest value of the slider; ignored while the limits are locked.
    void setTop(float top);
    /// The lowest value of the slider; ignored while the limits are locked.
    void setBottom(float bottom);
    /// The slider's range. Locked, values are clamped into it; otherwise a typed value beyond it widens it.
    void setValidLimits(float min, float max, bool lock);
    /// Shows a value, rounded to the 6 digits of its text. Any float is accepted, NaN and infinities too.
    void setRealValue(float newValue);

    /// The position of a value. Deliberately not the inverse of sliderToFloat() unless the range starts
    /// at 0. Saturates; NaN and an empty range give 0.
    int sliderToInt(float number) const;
    /// The value at a position.
    float sliderToFloat(int position) const;

    /// The value shown.
    float getRealValue() const;
    float getBottom() const;
    float getTop() const;
    bool areLimitsLocked() const;

protected:
    float bottom = 0;
    float top = 0;
    float value = 0;
    QDoubleValidator *validator;
    bool limitsLocked = false;
};

#endif
