// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Benchmarks.h"
#include "CellEdits.h"
#include "Comparison.h"
#include "PointTables.h"
#include "TableFields.h"
#include "Windows.h"

#include "tools/nodescope/CoinRef.h"
#include "tools/nodescope/FieldPanel.h"

#include <HbMFieldTable.h>

#include <QUndoStack>

#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoNurbsCurve.h>

#include <stdexcept>

namespace
{
using TableFields::million;
using TableFields::thousand;

/// The panel on a node with many values.
class TablePanel
{
public:
    TablePanel(std::shared_ptr<SoNode> node, const char *field)
        : m_node(std::move(node)), m_field(*static_cast<SoMField *>(m_node->getField(field)))
    {
        showNow(m_panel, TableFields::windowSize);
        m_panel.setNode(m_node.get());
        goToMiddle();
    }
    ~TablePanel()
    {
        m_panel.setNode(nullptr);
        deleteLeftovers();
    }
    TablePanel(const TablePanel &) = delete;
    TablePanel &operator=(const TablePanel &) = delete;

    double select()
    {
        m_panel.setNode(nullptr);
        turn(m_panel);
        deleteLeftovers();
        return seconds([this] { m_panel.setNode(m_node.get()); });
    }

    double editCell()
    {
        goToMiddle();
        const double time = seconds([this] { CellEdits::type(table()); });
        undoOne();
        return time;
    }
    double undoEdit()
    {
        goToMiddle();
        CellEdits::type(table());
        return undoOne();
    }

    double deleteRow()
    {
        goToMiddle();
        const double time = seconds([this] { table().deleteRow(); });
        undoOne();
        return time;
    }
    double undoDeletion()
    {
        goToMiddle();
        table().deleteRow();
        return undoOne();
    }

    double drag()
    {
        if (!m_drag)
            m_drag = std::make_unique<CellEdits::Drag>(table());
        return secondsOf([this] { m_drag->step(); });
    }

private:
    HbMFieldTable &table() { return *m_panel.findChild<HbMFieldTable *>(); }

    void goToMiddle()
    {
        turn(m_panel);
        table().setCurrentCell(m_field.getNum() / 2, 0);
        CellEdits::activate(table());
    }

    template <class Work> double seconds(const Work &work)
    {
        turn(m_panel);
        return secondsOf([&] {
            work();
            turn(m_panel);
        });
    }

    double undoOne()
    {
        if (m_stack.index() != 1)
            throw std::logic_error("the edit is not one step");
        const double time = seconds([this] { m_stack.undo(); });
        m_stack.clear();
        return time;
    }

    std::shared_ptr<SoNode> m_node;
    SoMField &m_field;
    QUndoStack m_stack;
    FieldPanel m_panel{&m_stack};
    std::unique_ptr<CellEdits::Drag> m_drag;
};

std::shared_ptr<TablePanel> pointPanel(int count)
{
    auto *const node = new SoCoordinate3;
    TableFields::fillPoints(node->point, count);
    return std::make_shared<TablePanel>(coinRef<SoNode>(node), "point");
}

using Step = double (TablePanel::*)();

void compareWithThousand(const char *name, Step step)
{
    compare({TableFields::counted(million, name), "the same of a thousand"}, [=] {
        const auto large = pointPanel(million);
        const auto small = pointPanel(thousand);
        return Sides{[=] { return ((*large).*step)(); }, [=] { return ((*small).*step)(); }};
    });
}

/// A million rows without a field.
class BareRows
{
public:
    BareRows()
    {
        m_table->setField(*TableFields::points(million));
        showNow(m_table->window(), TableFields::windowSize);
        m_table->setRow(million / 2);
    }
    double open()
    {
        m_table = PointTables::bare();
        return secondsOf([this] {
            m_table->setField(*m_field);
            showNow(m_table->window(), TableFields::windowSize);
        });
    }
    double insert()
    {
        const double seconds = secondsOf([this] { change(&PointTable::insertBehind); });
        change(&PointTable::remove);
        return seconds;
    }
    double remove()
    {
        change(&PointTable::insertBehind);
        return secondsOf([this] { change(&PointTable::remove); });
    }

private:
    void change(void (PointTable::*how)())
    {
        ((*m_table).*how)();
        turn(m_table->window());
    }

    TableFields::Points m_field = TableFields::points(million);
    std::unique_ptr<PointTable> m_table = PointTables::bare();
};

void compareWithBare(const char *name, Step step, const char *against, double (BareRows::*bare)())
{
    compare({TableFields::counted(million, name), against}, [=] {
        const auto panel = pointPanel(million);
        const auto rows = std::make_shared<BareRows>();
        return Sides{[=] { return ((*panel).*step)(); }, [=] { return ((*rows).*bare)(); }};
    });
}

void addDragging()
{
    constexpr double mostSeconds = 2e-3;
    compare({"the panel's slider dragged by a step", "2 ms", 1}, [] {
        auto *const node = new SoNurbsCurve;
        TableFields::fill(node->knotVector, million, [](int i) { return static_cast<float>(i % 10); });
        const auto panel = std::make_shared<TablePanel>(coinRef<SoNode>(node), "knotVector");
        return Sides{[=] { return panel->drag(); }, [=] { return mostSeconds; }};
    });
}
} // namespace

void addTablePanelBenchmarks()
{
    compareWithBare("points selected in the panel", &TablePanel::select, "bare setRowCount", &BareRows::open);
    compareWithThousand("points selected in the panel", &TablePanel::select);
    compareWithThousand("points: a cell edited in the panel", &TablePanel::editCell);
    compareWithThousand("points: that edit undone", &TablePanel::undoEdit);
    compareWithBare("points: a row deleted in the panel", &TablePanel::deleteRow, "bare removeRow", &BareRows::remove);
    compareWithBare("points: that deletion undone", &TablePanel::undoDeletion, "bare insertRow", &BareRows::insert);
    addDragging();
}
