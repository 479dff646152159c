// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TEXTCOLUMN_H
#define TEXTCOLUMN_H

#include "coin/FieldReader.h"
#include "support/CoinText.h"
#include "support/RowTextCache.h"
#include "support/RowValues.h"

#include <HbMFieldTable.h>
#include <HbMFieldWidget.h>

#include <QHeaderView>

#include <Inventor/fields/SoMFString.h>

/// What the editors share that show any value as text in file notation, in one column.
namespace TextColumn
{
inline void init(HbMFieldTable &table)
{
    table.setColumnCount(1);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    table.setNumRows(0);
}

inline QString value(SoMField *field, int row, int col)
{
    return field && col == 0 ? RowValues::text(*field, row) : QString();
}

/// What a cell of an editor of this library shows: of a long string no more than fits. What nodes hold takes long to
/// tell.
inline QString cellText(const HbMFieldWidget &widget, RowTextCache &texts, int row, int col, int limit)
{
    SoMField *const field = widget.editedField();
    if (!field || col != 0)
        return {};
    if (RowValues::isLongString(*field, row))
        return RowValues::startOfStringText(static_cast<const SoMFString &>(*field), row, limit);
    const auto text = [&] { return widget.getFieldValue(row, col); };
    return RowValues::holdsObjects(*field) ? texts.text(*field, row, text) : text();
}

/// Leaves what does not parse to the field's parser.
inline void setValue(SoMField *field, const SbString &text, int row, int col)
{
    if (field && col == 0 && RowValues::contains(*field, row))
        FieldReader::set1(*field, row, text.getString());
}
} // namespace TextColumn

#endif
