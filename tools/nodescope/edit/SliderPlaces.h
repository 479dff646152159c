// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SLIDERPLACES_H
#define SLIDERPLACES_H

#include "SliderRanges.h"

#include <QString>

class HbRealSlider;
class HbSlider;
class QSlider;

/**
 * Where the handle of a slider stands for which number.
 *
 * The formula of a slider of reals leads back to the number only from a span that starts at 0, so places are its own
 * business here; a slider of whole numbers has one place for each, and one of another class places as it likes.
 */
class SliderPlaces
{
public:
    explicit SliderPlaces(HbSlider &slider);

    /// What a slider of reals shows.
    static QString textOf(double number);

    /// The range that the slider was made with, where it can tell.
    std::optional<SliderSpan> ownSpan() const { return m_ownSpan; }
    void setSpan(const SliderSpan &span);
    /// Puts the handle where the shown number is.
    void place();
    /// Shows the number at @p place, and leaves the handle alone.
    void take(int place);
    /// Whether it was the slider that put the handle at @p place, to show a number.
    bool isOwnMove(int place) const;

private:
    int placeOf(double number) const;

    HbSlider &m_slider;
    QSlider &m_handle;
    HbRealSlider *m_real; ///< the slider if its places are ours
    std::optional<SliderSpan> m_ownSpan;
    SliderSpan m_span{0, 0, false};
    QString m_text; ///< shown when the handle was placed
};

#endif
