// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CELLTEXT_H
#define CELLTEXT_H

#include <QStringList>
#include <QVector>

/// Cells as text for the clipboard: tabs between them, rows on lines, as spreadsheets have it.
namespace CellText
{
/// A cell, in quotes where it holds a tab, a new line or a quote.
QString written(QString cell);
QVector<QStringList> split(const QString &text);
} // namespace CellText

#endif
