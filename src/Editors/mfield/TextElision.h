// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TEXTELISION_H
#define TEXTELISION_H

#include <QFontMetrics>
#include <QString>

/// Cuts texts to what fits a cell.
namespace TextElision
{
/// How many characters of a text are more than could fit, at a pixel each.
inline int mostThatFit(int width)
{
    return qMax(width, 0) + 16;
}

/// The text as a single line is drawn: with spaces for what would end a line or jump to a tab stop.
inline QString asDrawn(QString text)
{
    for (QChar &character : text)
        if (character.isSpace() || character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    return text;
}

/**
 * The longest start of @p text that fits @p width pixels with "..." behind it, at least one character; the text
 * itself if it fits. Costs the same for any length.
 */
inline QString elided(const QString &text, int width, const QFontMetrics &metrics)
{
    using Size = decltype(text.size());
    const Size most = mostThatFit(width);
    if (text.size() <= most && metrics.horizontalAdvance(text) <= width)
        return text;
    const QString dots = QStringLiteral("...");
    const auto cut = [&](Size length) { // never between the halves of a character
        return length > 0 && length < text.size() && text.at(length - 1).isHighSurrogate() ? length - 1 : length;
    };
    Size fits = 0;
    Size tooLong = qMin(text.size(), most) + 1;
    while (fits + 1 < tooLong) {
        const Size middle = fits + (tooLong - fits) / 2;
        const bool isFit = metrics.horizontalAdvance(text.left(cut(middle)) + dots) <= width;
        (isFit ? fits : tooLong) = middle;
    }
    const Size first = text.size() > 1 && text.at(0).isHighSurrogate() ? 2 : 1;
    return text.left(qMax(cut(fits), qMin(first, text.size()))) + dots;
}
} // namespace TextElision

#endif
