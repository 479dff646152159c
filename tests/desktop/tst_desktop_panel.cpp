// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Desktop.h"

#include <QJsonArray>

#include <algorithm>

/// Where the panel's controls stand, and what they show of a number.
class TestDesktopPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startWindowManager(); }

    /// The same columns in every row of every node, whatever it consists of.
    void oneGrid()
    {
        Desktop tool(
            "DEF A Texture2 { }\nDEF B SpotLight { }\nDEF C Transform { }\nDEF D Cone { }\nDEF E Coordinate3 { }\n"
            "DEF F ClipPlane { }\nDEF G MatrixTransform { }\nDEF H Complexity { }");
        QMap<QString, QSet<int>> columns;
        QSet<int> heights;
        for (const char *const type : {"Texture2", "SpotLight", "Transform", "Cone", "Coordinate3", "ClipPlane",
                                       "MatrixTransform", "Complexity"}) {
            tool.selectRow(type);
            QTRY_COMPARE(tool.selectedType(), QString(type));
            const auto rows = rowsOf(tool);
            QVERIFY(!rows.isEmpty());
            for (const QList<Control> &row : rows)
                measure(row, columns, heights);
        }
        for (const char *const column : {"label", "control", "box", "ignore", "default"})
            QVERIFY2(columns[column].size() == 1, qPrintable(column + listed(columns[column])));
        QVERIFY2(heights.size() == 1, qPrintable("heights" + listed(heights)));
    }

    void roomForTheView()
    {
        Desktop tool("DEF A Texture2 { }\nDEF B Transform { }", {"--size", "900x600"});
        tool.selectRow("Transform");
        QTRY_COMPARE(tool.selectedType(), QString("Transform"));
        QTRY_VERIFY(tool.view().width() >= 450);
        tool.selectRow("Texture2");
        QTRY_COMPARE(tool.selectedType(), QString("Texture2"));
        QVERIFY(tool.view().width() >= 450);
        QVERIFY(tool.view().width() < 600); // the panel is there
        for (const Control &bar : tool.controls("", "QScrollBar")) {
            const QRect place = bar.place();
            QVERIFY(place.isEmpty() || place.left() < tool.view().left() || place.height() > place.width());
        }
    }

    /// Left to right, row by row, the buttons too.
    void tabOrder()
    {
        Desktop tool("SpotLight { dropOffRate 0.5 location 1 2 3 }\nTexture2 { model BLEND }", {"--size", "1500x900"});
        for (const char *const type : {"SpotLight", "Texture2"}) {
            tool.selectRow(type);
            QTRY_COMPARE(tool.selectedType(), QString(type));
            QList<QPoint> stops;
            QSet<QString> names;
            walk(tool, stops, names);
            QVERIFY2(stops.size() > 12, qPrintable(QStringList(names.values()).join(' ')));
            QVERIFY(names.contains("m_ignoreButton") && names.contains("m_defaultButton"));
            for (int i = 1; i < stops.size(); ++i) {
                const QPoint way
                    = stops[i] - stops[i - 1]; // the buttons stand beside the first of lines below each other
                QVERIFY2(way.x() > 6 || way.y() > 6, qPrintable(QString("stop %1").arg(i)));
            }
        }
    }

    /// Shown exactly, and left alone by whoever only passes by.
    void exactNumbers()
    {
        Desktop tool("Transform { translation 0.33333334 0.1 1e-7 scaleFactor 16777216 1 1 }\n"
                     "Cone { height 0.33333334 bottomRadius 0.7 }");
        tool.selectRow("Transform");
        const auto shown = [&](const char *field, int index) { return tool.control(field, "QLineEdit", index).text(); };
        QTRY_COMPARE(shown("Transform.translation", 0), QString("0.33333334"));
        QCOMPARE(shown("Transform.translation", 1), QString("0.1"));
        QCOMPARE(shown("Transform.translation", 2), QString("1e-07"));
        QCOMPARE(shown("Transform.scaleFactor", 0), QString("16777216"));
        tool.click(tool.control("Transform.translation", "QLineEdit"));
        tool.press(QStringList{"Tab", "Tab", "Return", "Tab", "Tab"});
        tool.selectRow("Cone");
        QTRY_COMPARE(shown("Cone.height", 0), QString("0.33333334"));
        QCOMPARE(shown("Cone.bottomRadius", 0), QString("0.7"));
        tool.click(tool.control("Cone.height", "QLineEdit"));
        tool.press(QStringList{"Return", "Tab", "shift+Tab"});
        QVERIFY(!tool.isModified());
    }

    /// What stands in the panel grows with the desktop's font.
    void followsTheFont()
    {
        const auto heightAt = [](const char *dotsPerInch) {
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert("QT_FONT_DPI", dotsPerInch);
            Desktop tool("Cone { }", {"--size", "1500x900"}, environment);
            tool.selectRow("Cone");
            const Control edit = tool.control("Cone.height", "QLineEdit");
            const Control button = tool.control("Cone.height", "m_ignoreButton");
            return edit.place().height() == button.place().height() ? edit.place().height() : 0;
        };
        const int usual = heightAt("96");
        QVERIFY(usual > 0);
        QVERIFY(heightAt("192") > usual * 3 / 2);
    }

private:
    /// The controls of each field of the panel, from the left and the top.
    static QList<QList<Control>> rowsOf(Desktop &tool)
    {
        QMap<QString, QList<Control>> rows;
        const QJsonArray all = tool.state()["controls"].toArray();
        for (const QJsonValue &facts : all) {
            const Control control{facts.toObject()};
            const QString field = control.facts["field"].toString();
            if (field.contains('.') && control.facts["class"] != QJsonValue("cell") && !control.place().isEmpty())
                rows[field] << control;
        }
        return rows.values();
    }

    static void measure(const QList<Control> &row, QMap<QString, QSet<int>> &columns, QSet<int> &heights)
    {
        int control = INT_MAX;
        for (const Control &part : row) {
            const QRect place = part.place();
            const QString name = part.facts["name"].toString();
            const QString kind = part.facts["class"].toString();
            if (name == "m_label") {
                columns["label"] << place.left();
                columns["labelEnd"] << place.right();
                continue;
            }
            if (name == "m_ignoreButton" || name == "m_defaultButton")
                columns[name == "m_ignoreButton" ? "ignore" : "default"] << place.right();
            if (kind == "QCheckBox")
                columns["box"] << place.left();
            if ((kind == "QLineEdit" && name != "qt_spinbox_lineedit") || kind == "QComboBox")
                heights << place.height();
            if (kind == "QCheckBox" || kind == "QLineEdit" || kind == "QComboBox" || kind == "QLabel"
                || kind == "QPushButton" || kind == "HbMFieldTable")
                control = std::min(control, place.left());
        }
        columns["control"] << control;
    }

    /// Presses Tab in the panel, from its first control on, until it has left it.
    static void walk(Desktop &tool, QList<QPoint> &stops, QSet<QString> &names)
    {
        tool.selectedType() == "SpotLight" ? tool.click(tool.control("SpotLight.on", "QCheckBox"))
                                           : tool.click(tool.control("Texture2.filename", "QLineEdit"));
        for (Control stop = focused(tool); stop.facts["field"].toString().contains('.'); stop = focused(tool)) {
            stops << stop.middle();
            names << stop.facts["name"].toString();
            tool.press("Tab");
            QTRY_VERIFY(focused(tool).middle() != stop.middle());
        }
    }

    static Control focused(Desktop &tool)
    {
        const QJsonArray all = tool.state()["controls"].toArray();
        for (const QJsonValue &facts : all)
            if (const Control control{facts.toObject()}; control.is("focus"))
                return control;
        return {};
    }

    static QString listed(const QSet<int> &numbers)
    {
        QString text;
        for (const int number : numbers)
            text += QString(" %1").arg(number);
        return text;
    }
};

QTEST_MAIN(TestDesktopPanel)

#include "tst_desktop_panel.moc"
