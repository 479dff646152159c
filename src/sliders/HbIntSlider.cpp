// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbIntSlider.h>

#include "IntegerText.h"
#include "support/NumberValidator.h"
#include "support/TranslatedTexts.h"

#include <QLineEdit>

#include <limits>

namespace
{
IntValidator *validatorFor(HbSlider::SliderType type, QLineEdit *edit)
{
    if (type == HbSlider::Int16)
        return new IntValidator(edit, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max());
    return new IntValidator(edit); // all of int
}
} // namespace

HbIntSlider::HbIntSlider(SliderType type, SliderParentType parentType, HbFieldEditors *editor,
                         HbFieldEditorCommandManager *commandManager, QWidget *parent, int row, int col)
    : HbSlider(parentType, editor, commandManager, parent, row, col), validator(validatorFor(type, edit))
{
}

HbIntSlider::~HbIntSlider() = default;

void HbIntSlider::store(int newValue)
{
    value = sliderPosition = newValue;
    m_texts->set(edit, "toolTip", [number = value, base = base] { return IntegerText::toolTip(number, base); });
}

void HbIntSlider::setTop(int newTop)
{
    if (limitsLocked)
        return;
    top = newTop;
    setSliderMaximum(top);
}

void HbIntSlider::setBottom(int newBottom)
{
    if (limitsLocked)
        return;
    bottom = newBottom;
    setSliderMinimum(bottom);
}

void HbIntSlider::setValidLimits(int min, int max, bool lock)
{
    min = qMax(min, validator->bottom());
    max = qMin(max, validator->top());
    limitsLocked = lock;
    static_cast<IntValidator *>(validator)->setClamping(lock);
    if (!lock) {
        setTop(max);
        setBottom(min);
        return;
    }
    bottom = min;
    top = max;
    validator->setRange(min, max);
    setSliderRange(min, max);
}

void HbIntSlider::setValue(QString text)
{
    if (firstValue) {
        base = IntegerText::baseOf(text);
        if (base == 10)
            edit->setValidator(validator);
        firstValue = false;
    }
    QString digits = text.mid(IntegerText::prefix(base).size()); // whatever the text holds there
    setText(digits);
    setValueFromEdit();
    updateSlider();
}

void HbIntSlider::setValueFromEdit()
{
    bool parsed = false;
    int number = edit->text().toInt(&parsed, base); // 0 where the text is no number
    if (parsed && base != 10)
        number = qMax(qMin(number, validator->top()), validator->bottom());
    if (limitsLocked) {
        number = qMax(qMin(number, top), bottom);
    } else {
        if (number > top)
            setTop(number);
        if (number < bottom)
            setBottom(number);
    }
    store(number);
}

void HbIntSlider::setValueFromSlider(int position)
{
    store(position);
}

void HbIntSlider::updateEdit()
{
    QString digits = IntegerText::digits(value, base);
    setText(digits);
}

void HbIntSlider::saveDataFromField()
{
    keepPreviousData(IntegerText::digits(value, base));
}

int HbIntSlider::getIntValue() const
{
    return value;
}
