// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PanelMetrics.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>

namespace
{
/// The size that a control would like to have there.
template <class Control> QSize wishOf(const QWidget &like)
{
    Control control;
    control.setFont(like.font());
    control.ensurePolished();
    return control.sizeHint();
}

int editWidth(const QWidget &like, const QString &text)
{
    const QFontMetrics metrics = like.fontMetrics();
    return metrics.horizontalAdvance(text) + 2 * like.style()->pixelMetric(QStyle::PM_DefaultFrameWidth)
        + metrics.averageCharWidth();
}
} // namespace

PanelMetrics::PanelMetrics(const QWidget &like)
{
    height = std::max(
        {wishOf<QLineEdit>(like).height(), wishOf<QComboBox>(like).height(), wishOf<QSpinBox>(like).height()});
    checkBox = wishOf<QCheckBox>(like).width();
    const QFontMetrics metrics = like.fontMetrics();
    character = metrics.averageCharWidth();
    space = character;
    gap = std::max(1, character / 3);
    icon = metrics.height();
    letter = std::max({metrics.horizontalAdvance(QLatin1Char('w')), metrics.horizontalAdvance(QLatin1Char('G'))});
    shortNumber = editWidth(like, QStringLiteral("-0.577"));
    longNumber = editWidth(like, QStringLiteral("-1.2345679e+08"));
    leastEdit = 4 * character;
    constexpr int tableButtons = 6;
    mostBeside = tableButtons * (height + space) + leastEdit + 2 * space;
}
