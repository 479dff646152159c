// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef VECTORTABLE_H
#define VECTORTABLE_H

#include "support/NumberText.h"
#include "support/RowValues.h"

#include <HbMFieldTable.h>

#include <QHeaderView>
#include <QStringList>

#include <Inventor/fields/SoMField.h>

/// What the editors of values with several components share.
namespace VectorTable
{
/// Gives a table its columns, before it has rows: with rows that takes quadratic time.
void init(HbMFieldTable &table, const QStringList &labels);

template <class Field> bool accepts(const SoField *field)
{
    return field && field->isOfType(Field::getClassTypeId());
}

/// A component of a vector; 0 outside the field.
template <class Value, class Field> Value component(const Field *field, int row, int col, int columns)
{
    const bool known = field && RowValues::contains(*field, row) && col >= 0 && col < columns;
    return known ? (*field)[row][col] : Value(0);
}

template <class Value, class Field> void setComponent(Field *field, Value value, int row, int col, int columns)
{
    if (!field || !RowValues::contains(*field, row) || col < 0 || col >= columns)
        return;
    auto vector = (*field)[row];
    vector[col] = value;
    field->set1Value(row, vector);
}

inline QString textOf(float number)
{
    return NumberText::fromFloat(number);
}
inline QString textOf(int number)
{
    return QString::number(number);
}

/// The text of a component that @p widget tells; empty outside the field.
template <class Widget> QString text(const Widget &widget, int row, int col, int columns)
{
    const SoMField *const field = widget.editedField();
    const bool known = field && RowValues::contains(*field, row) && col >= 0 && col < columns;
    return known ? textOf(widget.getSingleFieldValue(row, col)) : QString();
}

inline void swap(SoMField *field, int first, int second)
{
    if (field)
        RowValues::swap(*field, first, second);
}
} // namespace VectorTable

#endif
