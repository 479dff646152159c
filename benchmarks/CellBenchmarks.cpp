// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Benchmarks.h"
#include "CellEdits.h"
#include "Comparison.h"
#include "TableFields.h"
#include "Windows.h"

#include <HbMFFloatWidget.h>
#include <HbMFMatrixWidget.h>
#include <HbMFStringWidget.h>
#include <HbMFVec3fWidget.h>
#include <HbMFieldTable.h>

#include <QEventLoop>
#include <QTimer>

#include <Inventor/SbMatrix.h>
#include <Inventor/fields/SoMFFloat.h>
#include <Inventor/fields/SoMFMatrix.h>
#include <Inventor/fields/SoMFString.h>

#include <stdexcept>

namespace
{
using TableFields::million;
using TableFields::thousand;

/// An editor in its window, on a field of its own.
template <class Editor, class Field> class Window
{
public:
    explicit Window(const std::function<void(Field &)> &fill)
    {
        fill(m_field);
        m_editor.setField(&m_field);
        m_editor.refresh();
        showNow(m_editor, TableFields::windowSize);
        CellEdits::activate(table());
    }

    Field &field() { return m_field; }
    QTableView &table() { return *m_table; }

    double repaint()
    {
        CellEdits::activate(table());
        return secondsToPaint();
    }

    double repaintAfterChange()
    {
        CellEdits::activate(table());
        m_field.touch();
        return secondsToPaint();
    }

private:
    double secondsToPaint()
    {
        return secondsOf([this] {
            table().viewport()->update();
            turn(m_editor);
        });
    }

    Field m_field;
    Editor m_editor{nullptr, nullptr, nullptr, Qt::WindowFlags()};
    HbMFieldTable *m_table = m_editor.template findChild<HbMFieldTable *>();
};
using PointWindow = Window<HbMFVec3fWidget, SoMFVec3f>;
using MatrixWindow = Window<HbMFMatrixWidget, SoMFMatrix>;
using StringWindow = Window<HbMFStringWidget, SoMFString>;
using FloatWindow = Window<HbMFFloatWidget, SoMFFloat>;

template <class Window> using Fill = std::function<void(decltype(std::declval<Window>().field()))>;

template <class Window> void comparePainting(const Comparison &comparison, double (Window::*seconds)(),
                                             const Fill<Window> &much, const Fill<Window> &little)
{
    compare(comparison, [=] {
        const auto large = std::make_shared<Window>(much);
        const auto small = std::make_shared<Window>(little);
        return Sides{[=] { return ((*large).*seconds)(); }, [=] { return ((*small).*seconds)(); }};
    });
}

auto pointsOf(int count)
{
    return [=](SoMFVec3f &field) { TableFields::fillPoints(field, count); };
}

auto matricesOf(int count)
{
    return [=](SoMFMatrix &field) { TableFields::fill(field, count, [](int) { return SbMatrix::identity(); }); };
}

auto stringsOf(int length)
{
    constexpr int rows = 10;
    return [=](SoMFString &field) {
        const SbString text(std::string(static_cast<std::size_t>(length), 'x').c_str());
        TableFields::fill(field, rows, [&](int) { return text; });
    };
}

void addPainting()
{
    constexpr double pageAim = 1.1;
    constexpr int matrices = 20 * thousand;
    constexpr int longText = 10 * million;
    comparePainting<PointWindow>({"a page of a million points painted", "one of a thousand", pageAim},
                                 &PointWindow::repaint, pointsOf(million), pointsOf(thousand));
    comparePainting<MatrixWindow>({"a page of 20,000 matrices painted", "one of a thousand", pageAim},
                                  &MatrixWindow::repaint, matricesOf(matrices), matricesOf(thousand));
    comparePainting<MatrixWindow>({"the same after a change of one matrix", "one of a thousand"},
                                  &MatrixWindow::repaintAfterChange, matricesOf(matrices), matricesOf(thousand));
    comparePainting<StringWindow>({"strings of 10 MB painted", "strings of 100 characters", 1.5},
                                  &StringWindow::repaint, stringsOf(longText), stringsOf(100));
}

/// The processor time of a visible table that nothing happens to.
void addIdleWindow()
{
    constexpr int clockSeconds = 5;
    compare({"a million points in an idle window", "the time on the clock, 5 s", 0.01}, [] {
        const auto window = std::make_shared<PointWindow>(pointsOf(million));
        return Sides{[=] {
                         CellEdits::activate(window->table());
                         return secondsOf([] {
                             QEventLoop loop;
                             QTimer::singleShot(clockSeconds * 1000, &loop, &QEventLoop::quit);
                             loop.exec();
                         });
                     },
                     [] { return clockSeconds; }};
    });
}

void addDragging()
{
    constexpr double mostSeconds = 2e-3;
    compare({"a slider dragged by a step, of a million", "2 ms", 1}, [] {
        const auto window = std::make_shared<FloatWindow>([](SoMFFloat &field) {
            TableFields::fill(field, million, [](int i) { return static_cast<float>(i % 10); });
        });
        window->table().setCurrentIndex(window->table().model()->index(million / 2, 0));
        const auto drag = std::make_shared<CellEdits::Drag>(window->table());
        return Sides{[=] {
                         const float before = window->field()[million / 2];
                         const double seconds = secondsOf([&] { drag->step(); });
                         if (window->field()[million / 2] == before)
                             throw std::logic_error("the field does not follow the slider");
                         return seconds;
                     },
                     [=] { return mostSeconds; }};
    });
}
} // namespace

void addCellBenchmarks()
{
    addPainting();
    addIdleWindow();
    addDragging();
}
