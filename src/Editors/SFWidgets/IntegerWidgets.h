// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef INTEGERWIDGETS_H
#define INTEGERWIDGETS_H

#include "support/CoinText.h"
#include "support/FieldWatch.h"

#include <HbIntSlider.h>
#include <HbRangeComponent.h>
#include <HbUIntSlider.h>

#include <Inventor/fields/SoSFInt32.h>
#include <Inventor/fields/SoSFShort.h>

/// What the four editors of single integers share.
namespace IntegerWidgets
{
inline void setLimits(HbIntSlider &slider, const HbRangeComponent &range)
{
    slider.setValidLimits(range.iMin, range.iMax, range.boundFixed);
}

/// A negative minimum counts as 0; a negative maximum is the pattern of a large number: -1 the largest.
inline void setLimits(HbUIntSlider &slider, const HbRangeComponent &range)
{
    slider.setValidLimits(static_cast<unsigned int>(qMax(range.iMin, 0)), static_cast<unsigned int>(range.iMax),
                          range.boundFixed);
}

/// An editor's edition frame seen as the slider it is, with its limits set.
template <class Slider> Slider *limitedSlider(QFrame *editionFrame, const HbRangeComponent &range)
{
    auto *const slider = static_cast<Slider *>(editionFrame);
    setLimits(*slider, range);
    return slider;
}

inline QString textOf(const SoSFInt32 &field)
{
    return QString::number(field.getValue());
}
inline QString textOf(const SoSFShort &field)
{
    return QString::number(field.getValue());
}
template <class Field> QString textOf(const Field &field)
{
    return QLatin1String("0x") + QString::number(field.getValue(), 16);
}

/// The field's own text; where the field is a @p Field without the writer that Coin builds up for each of them.
template <class Field> void show(SoField *field, HbSlider &slider)
{
    if (const auto *const number = fieldCast<Field>(field))
        slider.setValue(textOf(*number));
    else if (field)
        slider.setValue(CoinText::ofField(*field));
}

/// Writes decimal text; what the field's parser makes of a number too large for it is its own affair.
template <class Number> void write(SoField *field, Number number)
{
    if (field)
        field->set(QByteArray::number(number).constData());
}
} // namespace IntegerWidgets

#endif
