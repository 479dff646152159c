// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBUINTSLIDER_H
#define HBUINTSLIDER_H

#include <HbSlider.h>

/**
 * A slider for unsigned integers of 32 or 16 bits.
 *
 * The position is the value less 2^31, so that every value has one. Unlike the signed slider, locking the
 * limits narrows what may be typed and leaves the slider's range as it is.
 */
class HARBORAPI_EXPORT HbUIntSlider : public HbSlider
{
public:
    /// @p type decides the highest value: 65535 for UInt16, 4294967295 for all others.
    HbUIntSlider(SliderType type, SliderParentType parentType, HbFieldEditors *editor,
                 HbFieldEditorCommandManager *commandManager, QWidget *parent, int row, int col);
    ~HbUIntSlider() override;

    /// The first call fixes the base of the text, as it does for HbIntSlider.
    void setValue(QString text) override;
    void updateEdit() override;
    /// Text that is no number leaves the value as it is.
    void setValueFromEdit() override;
    void setValueFromSlider(int position) override;
    void saveDataFromField() override;

    /// The highest value of the slider; ignored while the limits are locked.
    void setTop(unsigned int top);
    /// The lowest value of the slider; ignored while the limits are locked.
    void setBottom(unsigned int bottom);
    /// The slider's range, or, locked, the values allowed.
    void setValidLimits(unsigned int min, unsigned int max, bool lock);

    /// The value shown.
    unsigned int getUIntValue() const;

protected:
    unsigned int bottom = 0;
    unsigned int top = 0;
    unsigned int value = 0;
    unsigned int maxAllowed;
    unsigned int minAllowed = 0;
    bool limitsLocked = false;
    bool firstValue = true;

private:
    void store(unsigned int newValue);
};

#endif
