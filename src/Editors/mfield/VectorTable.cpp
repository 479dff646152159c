// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "VectorTable.h"

void VectorTable::init(HbMFieldTable &table, const QStringList &labels)
{
    table.setColumnCount(static_cast<int>(labels.size()));
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    table.setHorizontalHeaderLabels(labels);
    table.setNumRows(0);
}
