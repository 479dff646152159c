// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef COLUMNWIDTHS_H
#define COLUMNWIDTHS_H

#include <QObject>

class QTableView;

/// Shares a table's width among its columns, as there is no scrolling sideways, until the user sets one.
class ColumnWidths : public QObject
{
public:
    explicit ColumnWidths(QTableView &table);

    /// When the table has another width.
    void share();

private:
    QTableView &m_table;
    bool m_areUsers = false;
    bool m_isSharing = false;
};

#endif
