// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SliderPlaces.h"

#include <HbIntSlider.h>
#include <HbRealSlider.h>
#include <HbUIntSlider.h>

#include <QSlider>

#include <cmath>
#include <typeinfo>

namespace
{
constexpr int lastPlace = 1000;
constexpr int stepsOfSpan = 100; ///< by the arrow keys, from end to end
constexpr int pagesOfSpan = 10;
} // namespace

SliderPlaces::SliderPlaces(HbSlider &slider)
    : m_slider(slider), m_handle(*slider.findChild<QSlider *>()),
      m_real(typeid(slider) == typeid(HbRealSlider) ? static_cast<HbRealSlider *>(&slider) : nullptr)
{
    if (m_real)
        m_ownSpan = {m_real->getBottom(), m_real->getTop(), m_real->areLimitsLocked()};
}

QString SliderPlaces::textOf(double number)
{
    return QString::number(number, 'g', 6);
}

void SliderPlaces::setSpan(const SliderSpan &span)
{
    if (m_real && span == m_span)
        return;
    m_span = span;
    if (m_real) {
        m_handle.setToolTip(QStringLiteral("%1 \u2026 %2").arg(textOf(span.low), textOf(span.high)));
        m_real->setValidLimits(static_cast<float>(span.low), static_cast<float>(span.high), span.isHard);
    } else if (auto *const integer = dynamic_cast<HbIntSlider *>(&m_slider)) {
        integer->setValidLimits(static_cast<int>(span.low), static_cast<int>(span.high), false);
    } else if (auto *const natural = dynamic_cast<HbUIntSlider *>(&m_slider)) {
        natural->setValidLimits(static_cast<unsigned>(span.low), static_cast<unsigned>(span.high), false);
    }
}

void SliderPlaces::place()
{
    m_text = m_slider.getText();
    if (m_real) {
        m_handle.setRange(0, lastPlace);
        m_handle.setValue(placeOf(static_cast<double>(m_real->getRealValue())));
        m_handle.setSingleStep(lastPlace / stepsOfSpan);
    }
    const double span = double(m_handle.maximum()) - m_handle.minimum();
    m_handle.setPageStep(qMax(1, static_cast<int>(span / pagesOfSpan)));
}

/// Only the ends of the span, which its texts round, are at the ends.
int SliderPlaces::placeOf(double number) const
{
    constexpr double rounding = 1e-5;
    const double share = (number - m_span.low) / (m_span.high - m_span.low);
    if (!(share > rounding)) // no number at all, too
        return 0;
    if (share >= 1 - rounding)
        return lastPlace;
    return qBound(1, static_cast<int>(std::lround(share * lastPlace)), lastPlace - 1);
}

void SliderPlaces::take(int place)
{
    if (!m_real) {
        m_slider.setValueFromSlider(place);
        m_slider.updateEdit();
    } else {
        const double number = m_span.low + place * ((m_span.high - m_span.low) / lastPlace);
        QString text = textOf(number);
        m_real->setText(text);
        m_real->setValueFromEdit();
        m_handle.setRange(0, lastPlace); // a rounded text may have widened it
        m_handle.setValue(place);
    }
    m_text = m_slider.getText();
}

bool SliderPlaces::isOwnMove(int place) const
{
    if (m_slider.isEdited() || m_slider.getText() != m_text)
        return true;
    return m_real && place == qBound(m_handle.minimum(), m_real->sliderToInt(m_real->getRealValue()), lastPlace);
}
