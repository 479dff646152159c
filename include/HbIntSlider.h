// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBINTSLIDER_H
#define HBINTSLIDER_H

#include <HbSlider.h>

class QIntValidator;

/// A slider for signed integers of 32 or 16 bits; position and value are the same number.
class HARBORAPI_EXPORT HbIntSlider : public HbSlider
{
public:
    /// @p type decides which numbers may be typed: Int16 those of 16 bits, all others those of 32.
    HbIntSlider(SliderType type, SliderParentType parentType, HbFieldEditors *editor,
                HbFieldEditorCommandManager *commandManager, QWidget *parent, int row, int col);
    ~HbIntSlider() override;

    /// The first call fixes the base of the text: "0x..." is hexadecimal, "0" and one digit octal
    /// (deliberately only that short), anything else decimal.
    void setValue(QString text) override;
    void updateEdit() override;
    void setValueFromEdit() override;
    void setValueFromSlider(int position) override;
    void saveDataFromField() override;

    /// The highest value of the slider; ignored while the limits are locked.
    void setTop(int top);
    /// The lowest value of the slider; ignored while the limits are locked.
    void setBottom(int bottom);
    /// The slider's range. Locked, values are clamped into it; otherwise a typed value beyond it widens it.
    void setValidLimits(int min, int max, bool lock);

    /// The value shown.
    int getIntValue() const;

protected:
    int bottom = 0;
    int top = 0;
    int value = 0;
    QIntValidator *validator;
    bool limitsLocked = false;
    bool firstValue = true;

private:
    void store(int newValue);
};

#endif
