// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbUIntSlider.h>

#include "IntegerText.h"
#include "support/TranslatedTexts.h"

#include <QLineEdit>

#include <limits>

namespace
{
constexpr unsigned int positionOffset = 1u << 31;

int positionOf(unsigned int value)
{
    return static_cast<int>(value + positionOffset);
}

unsigned int valueAt(int position)
{
    return static_cast<unsigned int>(position) - positionOffset;
}
} // namespace

HbUIntSlider::HbUIntSlider(SliderType type, SliderParentType parentType, HbFieldEditors *editor,
                           HbFieldEditorCommandManager *commandManager, QWidget *parent, int row, int col)
    : HbSlider(parentType, editor, commandManager, parent, row, col),
      maxAllowed(type == UInt16 ? std::numeric_limits<quint16>::max() : std::numeric_limits<quint32>::max())
{
}

HbUIntSlider::~HbUIntSlider() = default;

void HbUIntSlider::store(unsigned int newValue)
{
    value = newValue;
    sliderPosition = positionOf(value);
    m_texts->set(edit, "toolTip", [number = value, base = base] { return IntegerText::toolTip(number, base); });
}

void HbUIntSlider::setTop(unsigned int newTop)
{
    if (limitsLocked)
        return;
    top = newTop;
    setSliderMaximum(positionOf(top));
}

void HbUIntSlider::setBottom(unsigned int newBottom)
{
    if (limitsLocked)
        return;
    bottom = newBottom;
    setSliderMinimum(positionOf(bottom));
}

void HbUIntSlider::setValidLimits(unsigned int min, unsigned int max, bool lock)
{
    limitsLocked = lock;
    min = qMax(min, minAllowed);
    max = qMin(max, maxAllowed);
    if (lock) {
        minAllowed = min;
        maxAllowed = max;
    }
    setTop(max); // neither does anything once locked: the slider keeps its range, deliberately
    setBottom(min);
}

void HbUIntSlider::setValue(QString text)
{
    if (firstValue) {
        base = IntegerText::baseOf(text);
        firstValue = false;
    }
    QString digits = text.mid(IntegerText::prefix(base).size()); // whatever the text holds there
    setText(digits);
    setValueFromEdit();
    updateSlider();
}

void HbUIntSlider::setValueFromEdit()
{
    bool parsed = false;
    unsigned int number = edit->text().toUInt(&parsed, base);
    if (!parsed)
        return;
    number = qMax(qMin(number, maxAllowed), minAllowed);
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

void HbUIntSlider::setValueFromSlider(int position)
{
    store(valueAt(position));
}

void HbUIntSlider::updateEdit()
{
    QString digits = IntegerText::digits(value, base);
    setText(digits);
}

void HbUIntSlider::saveDataFromField()
{
    keepPreviousData(getText());
}

unsigned int HbUIntSlider::getUIntValue() const
{
    return value;
}
