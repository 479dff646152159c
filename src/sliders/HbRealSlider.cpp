// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbRealSlider.h>

#include "support/NumberValidator.h"

#include <QLineEdit>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
constexpr double largestFloat = std::numeric_limits<float>::max();
constexpr int decimals = 8;
constexpr int steps = 100;

/// Truncates toward zero; NaN gives 0, what int cannot hold its nearest bound.
int saturatedInt(double number)
{
    using Int = std::numeric_limits<int>;
    if (std::isnan(number))
        return 0;
    if (number >= Int::max())
        return Int::max();
    return number <= Int::min() ? Int::min() : static_cast<int>(number);
}
} // namespace

HbRealSlider::HbRealSlider(SliderParentType parentType, HbFieldEditors *editor,
                           HbFieldEditorCommandManager *commandManager, QWidget *parent, int row, int col)
    : HbSlider(parentType, editor, commandManager, parent, row, col),
      validator(new RealValidator(edit, -largestFloat, largestFloat, decimals))
{
    edit->setValidator(validator);
}

HbRealSlider::~HbRealSlider() = default;

int HbRealSlider::sliderToInt(float number) const
{
    if (top == bottom)
        return 0;
    const float position = bottom + (number - bottom) * steps / (top - bottom);
    return saturatedInt(position + 0.5);
}

float HbRealSlider::sliderToFloat(int position) const
{
    const float number = bottom + position * (top - bottom) / steps;
    if (std::isfinite(number))
        return number;
    // a range wider than a float can tell, or one that ends at infinity
    const double exact = bottom + position * (static_cast<double>(top) - bottom) / steps;
    if (std::isnan(exact))
        return bottom;
    return static_cast<float>(std::max<double>(bottom, std::min<double>(exact, top)));
}

void HbRealSlider::setTop(float newTop)
{
    if (limitsLocked)
        return;
    top = newTop;
    setSliderMaximum(sliderToInt(top));
}

void HbRealSlider::setBottom(float newBottom)
{
    if (limitsLocked)
        return;
    bottom = newBottom;
    setSliderMinimum(sliderToInt(bottom));
}

void HbRealSlider::setValidLimits(float min, float max, bool lock)
{
    limitsLocked = lock;
    static_cast<RealValidator *>(validator)->setClamping(lock);
    if (!lock) {
        setTop(max);
        setBottom(min);
        return;
    }
    bottom = min;
    top = max;
    validator->setRange(min, max, decimals);
    setSliderRange(sliderToInt(min), sliderToInt(max));
}

void HbRealSlider::setRealValue(float newValue)
{
    QString text = NumberText::fromFloat(newValue);
    setText(text);
    setValueFromEdit();
    updateSlider();
}

void HbRealSlider::setValueFromEdit()
{
    float number = NumberText::toFloat(edit->text());
    if (limitsLocked) {
        if (number > top)
            number = top;
        if (number < bottom)
            number = bottom;
    } else {
        if (number > top)
            setTop(number);
        if (number < bottom)
            setBottom(number);
    }
    sliderPosition = sliderToInt(number);
    value = number;
}

void HbRealSlider::setValueFromSlider(int position)
{
    sliderPosition = position;
    value = sliderToFloat(position);
}

void HbRealSlider::updateEdit()
{
    QString text = NumberText::fromFloat(value);
    setText(text);
}

void HbRealSlider::saveDataFromField()
{
    keepPreviousData(NumberText::fromFloat(value));
}

float HbRealSlider::getRealValue() const
{
    return value;
}

float HbRealSlider::getBottom() const
{
    return bottom;
}

float HbRealSlider::getTop() const
{
    return top;
}

bool HbRealSlider::areLimitsLocked() const
{
    return limitsLocked;
}
