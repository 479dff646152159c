// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Desktop.h"

/// Numbers typed as a person writes them.
class TestDesktopTyping : public QObject
{
    Q_OBJECT

    static void enter(Desktop &tool, const Control &edit, const QString &text, const char *end = "Return")
    {
        tool.doubleClick(edit);
        tool.type(text);
        tool.press(end);
    }
    static QProcessEnvironment withCommas()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
        return environment;
    }

private Q_SLOTS:
    void initTestCase() { startWindowManager(); }

    void oneNumber()
    {
        Desktop tool("Cone { }", {}, withCommas());
        tool.selectRow("Cone");
        const Control before = tool.control("Cone.height", "QLineEdit");
        for (const char *const text : {"1,000", "1/0", "nan", "30 deg"}) {
            enter(tool, before, QString::fromLatin1(text));
            QTRY_COMPARE(tool.control("Cone.height", "QLineEdit").text(), QString::fromLatin1(text));
            QTRY_COMPARE(tool.pixel(before.place().topLeft()), QColor(0xda, 0x44, 0x53));
        }
        tool.press("Tab"); // left: the field's value again
        QTRY_COMPARE(tool.control("Cone.height", "QLineEdit").text(), QStringLiteral("2"));
        QVERIFY(!tool.isModified());

        for (const char *const text : {"1/4", "0,25", "0.25"}) {
            enter(tool, before, QString::fromLatin1(text));
            QTRY_COMPARE(tool.value("height"), QStringLiteral("0.25"));
            tool.press("ctrl+z");
            QTRY_COMPARE(tool.value("height"), QStringLiteral("2"));
        }
        tool.doubleClick(before);
        tool.press({QStringLiteral("Up"), QStringLiteral("shift+Up"), QStringLiteral("ctrl+Down")});
        QTRY_COMPARE(tool.value("height"), QStringLiteral("12.9"));
        tool.press("ctrl+z"); // one step
        QTRY_COMPARE(tool.value("height"), QStringLiteral("2"));
    }

    void valuesOfManyNumbers()
    {
        Desktop tool("Transform { }\nDirectionalLight { color 1 1 1 }");
        tool.selectRow("Transform");
        enter(tool, tool.control("Transform.translation", "QLineEdit", 1), QStringLiteral("-1/8"));
        QTRY_COMPARE(tool.value("translation"), QStringLiteral("0 -0.125 0"));
        enter(tool, tool.control("Transform.rotation", "QLineEdit", 2), QStringLiteral("1"), "Tab");
        enter(tool, tool.control("Transform.rotation", "QLineEdit", 3), QStringLiteral("90 deg"));
        QTRY_VERIFY(tool.value("rotation").startsWith(QLatin1String("0 0 1  1.570796")));
        tool.selectRow("DirectionalLight");
        enter(tool, tool.control("DirectionalLight.color", "QLineEdit", 1), QStringLiteral("3/4"), "Tab");
        QTRY_COMPARE(tool.value("color"), QStringLiteral("1 0.75 1"));
        tool.type(QStringLiteral("0,5")); // over what was there
        tool.press({QStringLiteral("Return"), QStringLiteral("Up")});
        QTRY_VERIFY(tool.value("color").startsWith(QLatin1String("1 0.75 0.5099999")));
    }

    void tables()
    {
        Desktop tool("Coordinate3 { point [ 1 2 3, 4 5 6 ] }\nLevelOfDetail { screenArea [ 7 ] }");
        tool.selectRow("Coordinate3");
        tool.doubleClick(tool.cell("Coordinate3.point", 1, 2));
        tool.press("ctrl+a");
        tool.type(QStringLiteral("(1+2)/4"));
        tool.press("Return");
        QTRY_COMPARE(tool.value("point").simplified(), QStringLiteral("[ 1 2 3, 4 5 0.75 ]"));
        tool.selectRow("LevelOfDetail");
        tool.doubleClick(tool.cell("LevelOfDetail.screenArea", 0));
        tool.press("ctrl+a");
        tool.type(QStringLiteral("3/8"));
        tool.press("Return");
        QTRY_COMPARE(tool.value("screenArea"), QStringLiteral("0.375"));
    }
};

QTEST_MAIN(TestDesktopTyping)

#include "tst_desktop_typing.moc"
