// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Desktop.h"

namespace
{
/// The longest stretch of pixels side by side that are dark on light.
int longestStroke(const QImage &screen, const QRect &place)
{
    int longest = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        int length = 0;
        for (int x = place.left(); x <= place.right(); ++x) {
            length = qGray(screen.pixel(x, y)) < 140 ? length + 1 : 0;
            longest = std::max(longest, length);
        }
    }
    return longest;
}

int darkest(const QImage &screen, const QRect &place)
{
    int darkest = 255;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            darkest = std::min(darkest, qGray(screen.pixel(x, y)));
    return darkest;
}

/// A click on a window that is still finding its place may be lost.
void select(Desktop &tool, const char *type)
{
    for (int i = 0; i < 5 && tool.selectedType() != QLatin1String(type); ++i) {
        tool.selectRow(type);
        QTest::qWait(200);
    }
    QTRY_COMPARE(tool.selectedType(), QString::fromLatin1(type));
}
} // namespace

/// What a row shows of its field, the value on the clipboard, and ways from node to node.
class TestDesktopState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startWindowManager(); }

    void ignoredLooksIgnoredAndIsAlive()
    {
        Desktop tool("Cube { width 1 }");
        select(tool, "Cube");
        const QRect label = tool.control("Cube.width", "m_label").place();
        const QRect text = tool.control("Cube.width", "edit").place().adjusted(4, 4, -4, -4);
        const QImage before = tool.screen();
        tool.click(tool.control("Cube.width", "m_ignoreButton"));
        tool.move(tool.view().center());
        QTRY_VERIFY(tool.isFlagged("width", "ignored"));
        QTRY_VERIFY(longestStroke(tool.screen(), label) > 3 * longestStroke(before, label));
        QVERIFY(darkest(tool.screen(), text) > darkest(before, text) + 40);
        tool.doubleClick(tool.control("Cube.width", "edit"));
        tool.type(QStringLiteral("3"));
        tool.press("Return");
        QTRY_VERIFY(tool.value("width").startsWith(QLatin1String("3")));
    }

    void drivenIsReadOnlyAndLeadsToItsSource()
    {
        Desktop tool("DEF Turn RotationXYZ { angle 0.5 }\nCone { height 2 = USE Turn . angle }\n"
                     "Switch { whichChild = Calculator { a 1 expression \"oa = a\" } . oa }");
        select(tool, "Cone");
        QVERIFY(!tool.control("Cone.height", "slider").is("enabled"));
        const Control edit = tool.control("Cone.height", "edit");
        tool.doubleClick(edit);
        tool.type(QStringLiteral("7"));
        QCOMPARE(tool.control("Cone.height", "edit").text(), edit.text());
        QVERIFY(!tool.control("Cone.height", "m_defaultButton").is("enabled"));
        const Control link = tool.named("rowLink");
        QVERIFY2(link.text().contains(QLatin1String("RotationXYZ.angle")), qPrintable(link.text()));
        tool.click(link);
        QTRY_COMPARE(tool.selectedName(), QStringLiteral("Turn"));
    }

    void emptiedNumberComesBack()
    {
        Desktop tool("Rotation { rotation 0 1 0 0.5 }\nCube { width 4 }");
        const std::pair<const char *, const char *> rows[]
            = {{"Cube.width", "Cube"}, {"Rotation.rotation", "Rotation"}};
        for (const auto &[field, type] : rows) {
            select(tool, type);
            const int last = static_cast<int>(tool.controls(field, "QLineEdit").size()) - 1;
            const Control edit = tool.control(field, "QLineEdit", last);
            for (const char *const end : {"Return", "Tab"}) {
                tool.doubleClick(edit);
                tool.press({"ctrl+a", "BackSpace", QLatin1String(end)});
                QTRY_COMPARE(tool.control(field, "QLineEdit", last).text(), edit.text());
                QVERIFY(!tool.isModified());
            }
        }
    }

    void valueGoesFromNodeToNode()
    {
        Desktop tool("DEF A Cube { width 0.1234567 }\nDEF B Cube { }\nSwitch { }");
        const auto choose = [&tool](const char *label, const char *entry) {
            tool.click(tool.control(label, "m_label"), 3);
            tool.click(tool.named(entry, "entry"));
        };
        select(tool, "Cube");
        QVERIFY(tool.control("Cube.width", "m_defaultButton").is("enabled"));
        QCOMPARE(tool.controls("Cube.width", "changedDot").size(), 1);
        const QString exact = tool.value("width");
        choose("Cube.width", "&Copy Value");
        tool.selectRow("Cube", 1);
        QVERIFY(!tool.control("Cube.height", "m_defaultButton").is("enabled"));
        QCOMPARE(tool.controls("Cube.height", "changedDot").size(), 0);
        choose("Cube.height", "&Paste Value");
        QTRY_COMPARE(tool.value("height"), exact);
        QVERIFY(tool.control("Cube.height", "m_defaultButton").is("enabled"));
        tool.press("ctrl+z");
        QTRY_VERIFY(tool.isFlagged("height", "default"));
        QVERIFY(!tool.isModified());
        select(tool, "Switch");
        choose("Switch.whichChild", "&Paste Value");
        tool.named("The value of Cube.width does not fit Switch.whichChild.");
        QVERIFY(!tool.isModified());
    }

    void nodesInFieldsStandInTheTree()
    {
        Desktop tool("IndexedFaceSet { vertexProperty DEF Points VertexProperty { vertex [ 0 0 0, 1 0 0 ] } }");
        select(tool, "IndexedFaceSet");
        tool.click(tool.named("rowLink"));
        QTRY_COMPARE(tool.selectedName(), QStringLiteral("Points"));
        tool.press("ctrl+f"); // from anywhere
        tool.type(QStringLiteral("FaceSet"));
        tool.press("Return");
        QTRY_COMPARE(tool.selectedType(), QStringLiteral("IndexedFaceSet"));
    }

    void searchFindsByTypeAndName()
    {
        Desktop tool("DEF First Cube { }\nSeparator { DEF Second Sphere { } }\nDEF Shapeless Info { }\nMaterial { }");
        const auto count = [&tool] { return tool.named("searchCount").text(); };
        tool.press("ctrl+f");
        tool.type(QStringLiteral("shape"));
        QTRY_COMPARE(count(), QStringLiteral("3 found"));
        for (const char *const name : {"First", "Second", "Shapeless", "First"}) {
            tool.press("Return");
            QTRY_COMPARE(tool.selectedName(), QLatin1String(name));
        }
        tool.press({"shift+Return", "shift+Return"});
        QTRY_COMPARE(tool.selectedName(), QStringLiteral("Second"));
        QTRY_COMPARE(count(), QStringLiteral("2 of 3"));
        tool.press({"Escape", "Down"});
        QTRY_COMPARE(tool.selectedName(), QStringLiteral("Shapeless"));
    }
};

QTEST_MAIN(TestDesktopState)

#include "tst_desktop_state.moc"
