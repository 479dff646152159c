// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PointTables.h"

#include <HbMFVec3fWidget.h>
#include <HbMFieldTable.h>

#include <QAbstractTableModel>
#include <QTableWidget>

#include <Inventor/fields/SoMFVec3f.h>

namespace
{
constexpr int columns = 3;

QString textOf(const SoMFVec3f &field, int row, int column)
{
    return QString::number(static_cast<double>(field[row][column]), 'g', 6);
}

void insertInto(SoMFVec3f &field, int row)
{
    field.insertSpace(row, 1);
    field.set1Value(row, 0, 0, 0);
}

void swapIn(SoMFVec3f &field, int first, int second)
{
    const SbVec3f kept = field[first];
    field.set1Value(first, field[second]);
    field.set1Value(second, kept);
}

class Editor : public PointTable
{
public:
    QTableView &view() override { return *m_table; }
    void setField(SoMFVec3f &field) override
    {
        m_editor.setField(&field);
        m_editor.refresh();
    }
    void refresh() override { m_editor.refresh(); }
    void insertBehind() override { m_table->addRow(); }
    void remove() override { m_table->deleteRow(); }
    void moveDown() override { m_table->swapDownRow(); }

private:
    HbMFVec3fWidget m_editor{nullptr, nullptr, nullptr, Qt::WindowFlags()};
    HbMFieldTable *m_table = m_editor.findChild<HbMFieldTable *>();
};

class ItemPerCell : public PointTable
{
public:
    ItemPerCell()
    {
        m_table.setColumnCount(columns);
        QObject::connect(&m_table, &QTableWidget::cellChanged, &m_table,
                         [this](int row, int column) { write(row, column); });
    }

    QTableView &view() override { return m_table; }
    void setField(SoMFVec3f &field) override
    {
        m_field = &field;
        refresh();
    }
    void refresh() override
    {
        const QSignalBlocker own(&m_table);
        m_table.setRowCount(m_field->getNum());
        for (int row = 0; row < m_field->getNum(); ++row)
            showRow(row);
    }
    void insertBehind() override
    {
        insertInto(*m_field, row() + 1);
        const QSignalBlocker own(&m_table);
        m_table.insertRow(row() + 1);
        showRow(row() + 1);
    }
    void remove() override
    {
        m_field->deleteValues(row(), 1);
        m_table.removeRow(row());
    }
    void moveDown() override
    {
        const int moved = row();
        swapIn(*m_field, moved, moved + 1);
        const QSignalBlocker own(&m_table);
        showRow(moved);
        showRow(moved + 1);
        setRow(moved + 1);
    }

private:
    void showRow(int row)
    {
        for (int column = 0; column < columns; ++column) {
            if (QTableWidgetItem *const item = m_table.item(row, column))
                item->setText(textOf(*m_field, row, column));
            else
                m_table.setItem(row, column, new QTableWidgetItem(textOf(*m_field, row, column)));
        }
    }
    void write(int row, int column)
    {
        SbVec3f point = (*m_field)[row];
        point[column] = m_table.item(row, column)->text().toFloat();
        m_field->set1Value(row, point);
    }

    QTableWidget m_table;
    SoMFVec3f *m_field = nullptr;
};

class PointModel : public QAbstractTableModel
{
public:
    int rowCount(const QModelIndex &) const override { return m_field ? m_field->getNum() : 0; }
    int columnCount(const QModelIndex &) const override { return columns; }
    QVariant data(const QModelIndex &cell, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(textOf(*m_field, cell.row(), cell.column())) : QVariant();
    }

    void setField(SoMFVec3f *field)
    {
        beginResetModel();
        m_field = field;
        endResetModel();
    }
    void insert(int row)
    {
        beginInsertRows({}, row, row);
        insertInto(*m_field, row);
        endInsertRows();
    }
    void remove(int row)
    {
        beginRemoveRows({}, row, row);
        m_field->deleteValues(row, 1);
        endRemoveRows();
    }
    void swap(int row)
    {
        swapIn(*m_field, row, row + 1);
        Q_EMIT dataChanged(index(row, 0), index(row + 1, columns - 1));
    }

private:
    SoMFVec3f *m_field = nullptr;
};

class ModelView : public PointTable
{
public:
    ModelView() { m_view.setModel(&m_model); }

    QTableView &view() override { return m_view; }
    void setField(SoMFVec3f &field) override { m_model.setField(&field); }
    void refresh() override { m_view.viewport()->update(); }
    void insertBehind() override { m_model.insert(row() + 1); }
    void remove() override { m_model.remove(row()); }
    void moveDown() override
    {
        m_model.swap(row());
        setRow(row() + 1);
    }

private:
    PointModel m_model;
    QTableView m_view;
};

class Bare : public PointTable
{
public:
    Bare() { m_table.setColumnCount(columns); }

    QTableView &view() override { return m_table; }
    void setField(SoMFVec3f &field) override
    {
        m_table.setRowCount(field.getNum());
        refresh();
    }
    void refresh() override { m_table.viewport()->update(); }
    void insertBehind() override { m_table.insertRow(row() + 1); }
    void remove() override { m_table.removeRow(row()); }
    void moveDown() override { setRow(row() + 1); }

private:
    QTableWidget m_table;
};
} // namespace

std::unique_ptr<PointTable> PointTables::editor()
{
    return std::make_unique<Editor>();
}

std::unique_ptr<PointTable> PointTables::itemPerCell()
{
    return std::make_unique<ItemPerCell>();
}

std::unique_ptr<PointTable> PointTables::modelView()
{
    return std::make_unique<ModelView>();
}

std::unique_ptr<PointTable> PointTables::bare()
{
    return std::make_unique<Bare>();
}
