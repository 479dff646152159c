// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef PLAINAREAS_H
#define PLAINAREAS_H

#include "PlainRow.h"

/// The controls of each kind of editor, laid out by hand.
namespace PlainAreas
{
enum class Number { Any, Short, Integer, Real };

void addNumber(PlainRow &row, Number number);
void addComponents(PlainRow &row, int count, const char *const *names);
void addSpins(PlainRow &row, int minimum, int maximum);
void addPopup(PlainRow &row, int rows, int columns, Number number);

/// Check box, slider and edit.
template <Number number> void slider(PlainRow &row, const SoField *)
{
    addNumber(row, number);
}

/// Edits with their labels above.
template <int count> void vector(PlainRow &row, const SoField *)
{
    constexpr const char *names[] = {"x", "y", "z", "w"};
    addComponents(row, count, names);
}

/// Two spin boxes with their labels above.
template <int minimum, int maximum> void spins(PlainRow &row, const SoField *)
{
    addSpins(row, minimum, maximum);
}

/// A line that cannot be typed in, a button, and the grid that it opens.
template <int rows, int columns, Number number> void popup(PlainRow &row, const SoField *)
{
    addPopup(row, rows, columns, number);
}

void plane(PlainRow &row, const SoField *);
void rotation(PlainRow &row, const SoField *);
void checkBox(PlainRow &row, const SoField *);
/// A combo box of the field's names.
void choice(PlainRow &row, const SoField *field);
/// A check box for each of the field's bits.
void bits(PlainRow &row, const SoField *field);
void line(PlainRow &row, const SoField *);
/// A button that shows the colour, and three edits with their labels at the left.
void colour(PlainRow &row, const SoField *);
/// A thumbnail, and the larger picture that pops up.
void picture(PlainRow &row, const SoField *);
/// Three edits and nothing else.
void threeEdits(PlainRow &row, const SoField *);
} // namespace PlainAreas

#endif
