// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CellText.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace
{
constexpr QLatin1Char quote('"');
constexpr QLatin1Char tab('\t');
constexpr QLatin1Char newLine('\n');

/// A comma without a space may be a decimal one, but not two of them.
QStringList wordsOf(const QString &values)
{
    static const QRegularExpression twoCommas(QStringLiteral(",[^\\s,]+,\\S"));
    static const QRegularExpression betweenAll(QStringLiteral("[,\\s]+"));
    static const QRegularExpression between(QStringLiteral("(,?\\s)+|,$"));
    return values.split(values.contains(twoCommas) ? betweenAll : between, Qt::SkipEmptyParts);
}
} // namespace

QString CellText::written(QString cell)
{
    if (!cell.contains(tab) && !cell.contains(newLine) && !cell.contains(quote))
        return cell;
    return quote + cell.replace(quote, QLatin1String("\"\"")) + quote;
}

QVector<QStringList> CellText::split(const QString &text)
{
    QVector<QStringList> rows(1);
    QString cell;
    bool isQuoted = false;
    const auto endCell = [&] { rows.last() += std::exchange(cell, QString()); };
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        const bool isDoubled = isQuoted && character == quote && i + 1 < text.size() && text.at(i + 1) == quote;
        if (isDoubled) {
            cell += text.at(++i);
        } else if (character == quote && (isQuoted || cell.isEmpty())) {
            isQuoted = !isQuoted;
        } else if (isQuoted || (character != tab && character != newLine && character != QLatin1Char('\r'))) {
            cell += character;
        } else if (character == tab) {
            endCell();
        } else if (character == newLine) {
            endCell();
            rows.append(QStringList());
        }
    }
    if (!cell.isEmpty() || !rows.last().isEmpty())
        endCell();
    else
        rows.removeLast(); // the text ended with its last line
    return rows;
}

QVector<QStringList> CellText::splitValues(const QString &text, int numbersInRow)
{
    static const QRegularExpression comment(QStringLiteral("#[^\n]*"));
    static const QRegularExpression bracketed(QStringLiteral("^\\s*[A-Za-z]*\\s*\\[([^\\[\\]]*)\\]\\s*$"));
    static const QRegularExpression number(QStringLiteral("^[-+]?(0[xX][0-9a-fA-F]+|[0-9.]+([eE][-+]?[0-9]+)?)$"));
    if (text.contains(tab))
        return {};
    const QString plain = QString(text).remove(comment);
    const QRegularExpressionMatch inBrackets = bracketed.match(plain);
    const QStringList words = wordsOf((inBrackets.hasMatch() ? inBrackets.captured(1) : plain).trimmed());
    const bool areNumbers
        = std::all_of(words.begin(), words.end(), [](const QString &word) { return number.match(word).hasMatch(); });
    if (!areNumbers || words.size() < 2 || words.size() % numbersInRow != 0)
        return {};
    QVector<QStringList> rows;
    for (int i = 0; i < words.size(); i += numbersInRow)
        rows += words.mid(i, numbersInRow);
    return rows;
}
