// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef POINTTABLES_H
#define POINTTABLES_H

#include <QTableView>

#include <memory>

class SoMFVec3f;

/**
 * A table of points, alone in its window.
 *
 * The current row is the one that operations on rows are about. They change the field as well, but for the bare
 * table, which has nothing to do with a field.
 */
class PointTable
{
public:
    virtual ~PointTable() = default;

    virtual QTableView &view() = 0;
    /// The table comes up with a field, or goes over to one with as many values.
    virtual void setField(SoMFVec3f &field) = 0;
    /// Shows values that may all be others.
    virtual void refresh() = 0;
    virtual void insertBehind() = 0;
    virtual void remove() = 0;
    virtual void moveDown() = 0;

    QWidget &window() { return *view().window(); }
    int row() { return view().currentIndex().row(); }
    void setRow(int row) { view().setCurrentIndex(view().model()->index(row, 0)); }
};

namespace PointTables
{
/// The library's editor, which writes to the field itself.
std::unique_ptr<PointTable> editor();
/// A QTableWidget with an item in each cell.
std::unique_ptr<PointTable> itemPerCell();
/// A QTableView over a model that asks the field for each text.
std::unique_ptr<PointTable> modelView();
/// A QTableWidget that is given its rows and nothing else.
std::unique_ptr<PointTable> bare();
} // namespace PointTables

#endif
