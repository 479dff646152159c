// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Benchmarks.h"
#include "CellEdits.h"
#include "Comparison.h"
#include "PointTables.h"
#include "TableFields.h"
#include "Windows.h"

#include <QApplication>

#include <malloc.h>

#include <array>

namespace
{
using Create = std::unique_ptr<PointTable> (*)();

/// A table in its window, on one of two fields of the same length.
class Shown
{
public:
    Shown(Create create, int count)
        : m_fields{TableFields::points(count), TableFields::points(count)}, m_table(create())
    {
        m_table->setField(*m_fields[0]);
        showNow(m_table->window(), TableFields::windowSize);
    }

    PointTable &table() const { return *m_table; }
    void changeAll() { TableFields::fillPoints(*m_fields[0], m_fields[0]->getNum()); }
    void showOther()
    {
        std::swap(m_fields[0], m_fields[1]);
        m_table->setField(*m_fields[0]);
    }

    /// Goes to a row without the cost counting.
    void goTo(int row)
    {
        m_table->setRow(row);
        CellEdits::activate(m_table->view());
    }
    int last() const { return m_table->view().model()->rowCount() - 1; }

    /// Until what changed is painted.
    template <class Work> double seconds(const Work &work)
    {
        CellEdits::activate(m_table->view());
        return secondsOf([&] {
            work();
            turn(m_table->window());
        });
    }

private:
    std::array<TableFields::Points, 2> m_fields;
    std::unique_ptr<PointTable> m_table;
};

double refresh(Shown &shown)
{
    shown.changeAll();
    return shown.seconds([&] { shown.table().refresh(); });
}

double showOther(Shown &shown)
{
    return shown.seconds([&] { shown.showOther(); });
}

double repaint(Shown &shown)
{
    return shown.seconds([&] { shown.table().view().viewport()->update(); });
}

double insertRow(Shown &shown)
{
    const int middle = shown.last() / 2;
    shown.goTo(middle);
    const double seconds = shown.seconds([&] { shown.table().insertBehind(); });
    shown.goTo(middle + 1);
    shown.table().remove();
    return seconds;
}

double removeRow(Shown &shown)
{
    const int middle = shown.last() / 2;
    shown.goTo(middle);
    shown.table().insertBehind();
    shown.goTo(middle + 1);
    return shown.seconds([&] { shown.table().remove(); });
}

double moveRow(Shown &shown)
{
    shown.goTo(shown.last() / 2);
    return shown.seconds([&] { shown.table().moveDown(); });
}

double scrollToEnd(Shown &shown)
{
    QTableView &view = shown.table().view();
    view.scrollToTop();
    return shown.seconds([&] { view.scrollTo(view.model()->index(shown.last(), 0)); });
}

double editCell(Shown &shown)
{
    shown.goTo(shown.last() / 2);
    return shown.seconds([&] { CellEdits::type(shown.table().view()); });
}

struct Rival {
    const char *name;
    Create create;
};
constexpr std::array<Rival, 3> rivals = {{{"an item per cell", PointTables::itemPerCell},
                                          {"QTableView and a model", PointTables::modelView},
                                          {"bare setRowCount", PointTables::bare}}};

constexpr double none = 0;
constexpr double notCompared = -1;
using Aims = std::array<double, rivals.size()>; ///< for a million values

struct Operation {
    const char *name;
    double (*seconds)(Shown &shown);
    Aims aims;
};
constexpr Operation operations[] = {
    {"refreshed", refresh, {none, none, none}},
    {"another field shown", showOther, {1.0 / 1000, none, none}},
    {"a page painted", repaint, {none, none, none}},
    {"a row inserted in the middle", insertRow, {none, none, 1.3}},
    {"the middle row deleted", removeRow, {none, none, none}},
    {"the middle row moved", moveRow, {none, none, notCompared}},
    {"scrolled to the end", scrollToEnd, {none, none, none}},
    {"a cell edited", editCell, {none, notCompared, notCompared}},
};
constexpr double minimumTime = 0.01; ///< what is not timed takes much longer
constexpr Aims openingAims = {1.0 / 40, none, 1.15};
constexpr Aims memoryAims = {none, none, 1.05};

double secondsToOpen(Create create, SoMFVec3f &field)
{
    std::unique_ptr<PointTable> table;
    return secondsOf([&] {
        table = create();
        table->setField(field);
        showNow(table->window(), TableFields::windowSize);
    });
}

double bytesInUse()
{
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks) + static_cast<double>(heap.hblkhd);
}

double bytesARow(Create create, SoMFVec3f &field)
{
    const double before = bytesInUse();
    const std::unique_ptr<PointTable> table = create();
    table->setField(field);
    showNow(table->window(), TableFields::windowSize);
    return (bytesInUse() - before) / field.getNum();
}

template <class Measure> void compareNew(const Comparison &comparison, Measure measure, Create rival, int count)
{
    compare(comparison, [=] {
        const TableFields::Points field = TableFields::points(count);
        return Sides{[=] { return measure(PointTables::editor, *field); }, [=] { return measure(rival, *field); }};
    });
}

struct Match {
    Shown editor;
    Shown rival;
};

/// The last match is kept: a million rows with an item in each cell take seconds to make.
Match &match(const Rival &rival, int count)
{
    static std::unique_ptr<Match> last;
    static std::pair<Create, int> lastKey;
    static const bool isWatched = (qAddPostRoutine([] { last.reset(); }), true);
    Q_UNUSED(isWatched)
    if (!last || lastKey != std::pair(rival.create, count)) {
        last.reset();
        last.reset(new Match{{PointTables::editor, count}, {rival.create, count}});
        lastKey = {rival.create, count};
    }
    return *last;
}

void compareWith(std::size_t rivalIndex, int count)
{
    const Rival &rival = rivals[rivalIndex];
    const std::string rows = TableFields::counted(count, "rows: ");
    const auto aim = [=](const Aims &aims) { return count == TableFields::million ? aims[rivalIndex] : none; };
    compareNew({rows + "opened", rival.name, aim(openingAims), false, minimumTime}, secondsToOpen, rival.create, count);
    compareNew({rows + "memory a row", rival.name, aim(memoryAims), true}, bytesARow, rival.create, count);
    for (const Operation &operation : operations) {
        if (operation.aims[rivalIndex] == notCompared)
            continue;
        compare({rows + operation.name, rival.name, aim(operation.aims), false, minimumTime}, [=, &operation, &rival] {
            Match &both = match(rival, count);
            return Sides{[&] { return operation.seconds(both.editor); }, [&] { return operation.seconds(both.rival); }};
        });
    }
}
} // namespace

void addTableBenchmarks()
{
    using namespace TableFields;
    for (const int count : {thousand, 100 * thousand, million})
        for (std::size_t i = 0; i < rivals.size(); ++i)
            compareWith(i, count);
    constexpr int most = 10 * million;
    for (const Rival &rival : rivals)
        if (rival.create != PointTables::itemPerCell) // which would take 7 GB
            compareNew({counted(most, "rows: opened"), rival.name, none, false, minimumTime}, secondsToOpen,
                       rival.create, most);
}
