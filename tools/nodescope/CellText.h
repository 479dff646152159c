// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CELLTEXT_H
#define CELLTEXT_H

#include <QStringList>
#include <QVector>

/// Cells as text of the clipboard: tabs between them, rows on lines, as spreadsheets have it.
namespace CellText
{
/// A cell, in quotes where it holds a tab, a new line or a quote.
QString written(QString cell);
QVector<QStringList> split(const QString &text);

/// The rows of numbers in the notation of scene files, "point [ 1 2 3, 4 5 6 ]", with or without the name, the brackets
/// and the commas; none where the text is anything else, or one number only.
QVector<QStringList> splitValues(const QString &text, int numbersInRow);
} // namespace CellText

#endif
