// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CELLTEXT_H
#define CELLTEXT_H

#include <QStringList>
#include <QVector>

/// Cells as text for the clipboard: tabs between them, rows on lines, as spreadsheets have it.
namespace CellText
{
/// In quotes where a cell holds a tab, a new line or a quote.
QString join(const QVector<QStringList> &rows);
QVector<QStringList> split(const QString &text);
} // namespace CellText

#endif
