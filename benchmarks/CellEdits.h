// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CELLEDITS_H
#define CELLEDITS_H

#include <QTableView>

class QSlider;

/// What a person does in the cells of a table.
namespace CellEdits
{
/// Brings the table's window to the front, so that each is painted as the active one.
void activate(QTableView &table);
/// Opens the editor of the current cell, types a number that was not there before, and presses Return.
void type(QTableView &table);

/// Drags the slider in the current cell to and fro.
class Drag
{
public:
    explicit Drag(QTableView &table);
    void step();
    void end();

private:
    QTableView &m_table;
    QSlider *m_slider;
    int m_pace;
};
} // namespace CellEdits

#endif
