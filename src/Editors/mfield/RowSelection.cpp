// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RowSelection.h"

#include <QTableWidget>

RowSelection::RowSelection(QTableWidget &table) : m_table(table)
{
    m_table.setSelectionMode(QAbstractItemView::NoSelection);
}

void RowSelection::begin()
{
    m_table.setSelectionMode(QAbstractItemView::ContiguousSelection);
    m_isOn = true;
}

void RowSelection::end()
{
    m_table.clearSelection(); // else a later Delete would remove rows that nobody sees selected
    m_table.setSelectionMode(QAbstractItemView::NoSelection);
    m_isOn = false;
}

std::optional<RowSelection::Rows> RowSelection::first() const
{
    const QList<QTableWidgetSelectionRange> ranges = m_table.selectedRanges();
    if (ranges.isEmpty())
        return {};
    return Rows{ranges.first().topRow(), ranges.first().rowCount()};
}
