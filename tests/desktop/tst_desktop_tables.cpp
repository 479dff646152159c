// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Desktop.h"

#include <QJsonArray>

/// Tables, as somebody expects them who knows spreadsheets.
class TestDesktopTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startWindowManager(); }

    void whatIsTypedOnACellEditsIt()
    {
        Desktop tool(points, {"--select", "Points"});
        tool.click(tool.cell(field, 1, 0));
        tool.type("-2.5");
        tool.press("Return"); // goes down
        tool.type("7");
        tool.press("Tab"); // goes to the right
        tool.type("+8");
        tool.press("Return");
        QTRY_COMPARE(shown(tool), "0 0 0, -2.5 1 1, 7 8 2, 3 3 3");
        tool.type("9");
        tool.press({"Escape", "F2"});
        tool.type("4");
        tool.press({"Escape", "ctrl+z"});
        QTRY_COMPARE(shown(tool), "0 0 0, -2.5 1 1, 7 2 2, 3 3 3"); // Escape left no step
    }

    void rowsAreAddedAndDeleted()
    {
        Desktop tool(points, {"--select", "Points"});
        tool.click(header(tool, "2"));
        tool.holding("ctrl", [&] { tool.click(header(tool, "4")); });
        tool.press("Delete");
        QTRY_COMPARE(shown(tool), "0 0 0, 2 2 2");
        tool.press("ctrl+z");
        QTRY_COMPARE(shown(tool), QString(all));
        tool.drag(tool.cell(field, 1, 1).middle(), tool.cell(field, 2, 2).middle());
        tool.click(tool.control(field, "m_deleteButton"));
        QTRY_COMPARE(shown(tool), "0 0 0, 3 3 3");
        tool.click(tool.cell(field, 0, 2));
        tool.press("Insert");
        tool.type("5"); // the new row is current
        tool.press("Return");
        QTRY_COMPARE(shown(tool), "0 0 0, 0 0 5, 3 3 3");
    }

    void whatIsSelectedIsPaintedAndCopied()
    {
        Desktop tool(points, {"--select", "Points"});
        const QColor plain = inside(tool, 1, 1);
        tool.drag(tool.cell(field, 1, 0).middle(), tool.cell(field, 2, 1).middle());
        QTRY_VERIFY(inside(tool, 1, 0) != plain);
        QVERIFY(inside(tool, 2, 1) != plain && inside(tool, 0, 0) == plain && inside(tool, 1, 2) == plain);
        tool.press("ctrl+c");
        tool.click(tool.cell(field, 0, 1));
        tool.press("ctrl+v");
        QTRY_COMPARE(shown(tool), "0 1 1, 1 2 2, 2 2 2, 3 3 3");
        tool.press("ctrl+z");
        tool.press("ctrl+a");
        QTRY_COMPARE(selectedCells(tool), 12);
        tool.click(tool.cell(field, 1, 1));
        tool.press("ctrl+shift+End");
        QTRY_COMPARE(selectedCells(tool), 6);
        tool.press({"shift+Up", "ctrl+c", "ctrl+Home", "ctrl+v"});
        QTRY_COMPARE(shown(tool), "1 1 0, 2 2 1, 2 2 2, 3 3 3");
    }

    void rowsAreCountedAlike()
    {
        Desktop tool(points, {"--select", "Points"});
        tool.click(tool.cell(field, 2, 0));
        QTRY_COMPARE(tool.control(field, "m_accessBox").text(), "3");
        const Control box = tool.control(field, "m_accessBox");
        tool.doubleClick(tool.control(field, "qt_spinbox_lineedit"));
        tool.type("2");
        QTRY_VERIFY(tool.cell(field, 1, 0).is("current"));
        tool.doubleClick(tool.cell(field, 1, 0));
        tool.type("6");
        tool.press("Return");
        tool.click(tool.named("&Edit", "menu"));
        QTRY_VERIFY(tool.named("&Undo Coordinate3.point, row 2: 1 1 1 \u2192 6 1 1", "entry").isThere());
    }

    void matricesAreReadAndScrolled()
    {
        QByteArray scene = "DEF Copies MultipleCopy { matrix [";
        for (int i = 0; i < 12; ++i)
            scene += QByteArray::number(i) + " 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1,";
        Desktop tool(scene + "] }", {"--select", "Copies"});
        const char *const matrices = "MultipleCopy.matrix";
        const QPoint first = tool.cell(matrices, 0).middle();
        tool.wheel(first, -3);
        QTRY_VERIFY(tool.cell(matrices, 11).isThere());
        tool.click(tool.cell(matrices, 11));
        tool.type("5.5"); // opens the grid
        tool.press("Return");
        QTRY_VERIFY(tool.value("matrix").simplified().contains("10 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1, 5.5 0 0 0"));
    }

private:
    static constexpr const char *points = "DEF Points Coordinate3 { point [ 0 0 0, 1 1 1, 2 2 2, 3 3 3 ] }";
    static constexpr const char *field = "Coordinate3.point";
    static constexpr const char *all = "0 0 0, 1 1 1, 2 2 2, 3 3 3";

    static QString shown(Desktop &tool) { return tool.value("point").remove('[').remove(']').simplified(); }

    static QPoint header(Desktop &tool, const char *row) { return tool.named(row, "rowHeader").middle(); }

    /// Beside the cell's text.
    static QColor inside(Desktop &tool, int row, int column)
    {
        return tool.pixel(tool.cell(field, row, column).place().topLeft() + QPoint(6, 6));
    }

    static int selectedCells(Desktop &tool)
    {
        int count = 0;
        const QJsonArray controls = tool.state()["controls"].toArray();
        for (const QJsonValue &control : controls)
            if (control.toObject()["field"] == QLatin1String(field) && control.toObject()["selected"].toBool())
                ++count;
        return count;
    }
};

QTEST_MAIN(TestDesktopTables)

#include "tst_desktop_tables.moc"
