// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ColumnWidths.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>

ColumnWidths::ColumnWidths(QTableView &table) : m_table(table)
{
    connect(table.horizontalHeader(), &QHeaderView::sectionResized, this,
            [this] { m_areUsers |= m_table.isVisible() && !m_isSharing; });
}

void ColumnWidths::share()
{
    if (m_areUsers)
        return;
    const QScopedValueRollback<bool> own(m_isSharing, true);
    const int columns = m_table.model()->columnCount();
    for (int col = 0, left = m_table.viewport()->width(); col < columns; ++col) {
        const int width = left / (columns - col);
        m_table.setColumnWidth(col, width);
        left -= width;
    }
}
