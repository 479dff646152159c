// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROWSELECTION_H
#define ROWSELECTION_H

#include <optional>

class QTableWidget;

/// The rows of a table that are selected while Shift is held; at other times nothing can be selected.
class RowSelection
{
public:
    struct Rows {
        int top;
        int count;
    };

    explicit RowSelection(QTableWidget &table);

    void begin();
    void end();
    bool isOn() const { return m_isOn; }
    /// The first range of selected rows, if any.
    std::optional<Rows> first() const;

private:
    QTableWidget &m_table;
    bool m_isOn = false;
};

#endif
