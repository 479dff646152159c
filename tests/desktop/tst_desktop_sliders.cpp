// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Desktop.h"

/// Ticks that tell the truth, and sliders that fit what they set.
class TestDesktopSliders : public QObject
{
    Q_OBJECT

    /// A click on a window that is still finding its place may be lost.
    static void select(Desktop &tool, const char *type)
    {
        for (int i = 0; i < 5 && tool.selectedType() != QLatin1String(type); ++i) {
            tool.selectRow(type);
            QTest::qWait(200);
        }
        QTRY_COMPARE(tool.selectedType(), QString::fromLatin1(type));
    }

    /// The pixel of a slider in which its handle is, from end to end.
    static QPoint at(const Control &slider, double share)
    {
        const QRect place = slider.place();
        const int handle = place.height() / 2;
        return {place.left() + handle + int(share * (place.width() - 2 * handle)), place.center().y()};
    }

    static int ticks(Desktop &tool)
    {
        int ticked = 0;
        const char *const names[] = {"SIDES", "TOP", "BOTTOM", "ALL"};
        for (int i = 0; i < 4; ++i)
            ticked |= tool.control("Cylinder.parts", names[i]).is("checked") << i;
        return ticked;
    }

private Q_SLOTS:
    void initTestCase() { startWindowManager(); }

    void aTickIsTheBitsOfItsName()
    {
        Desktop tool("Cylinder { parts (SIDES | TOP | BOTTOM) }");
        select(tool, "Cylinder");
        QTRY_COMPARE(ticks(tool), 0xf);
        const QString all = tool.value("parts");
        tool.click(tool.control("Cylinder.parts", "TOP"));
        QTRY_COMPARE(tool.value("parts"), QStringLiteral("(SIDES | BOTTOM)"));
        QTRY_COMPARE(ticks(tool), 0x5);
        QVERIFY(tool.isModified());
        tool.press("ctrl+z");
        QTRY_COMPARE(ticks(tool), 0xf);
        QCOMPARE(tool.value("parts"), all);
        QTRY_VERIFY(!tool.isModified());
        tool.click(tool.control("Cylinder.parts", "ALL"));
        QTRY_COMPARE(ticks(tool), 0x0);
        tool.press("ctrl+z");
        QTRY_VERIFY(!tool.isModified());
    }

    void aTouchedHandleLeavesTheValue()
    {
        Desktop tool("Cone { height 2.3456789 }");
        select(tool, "Cone");
        const Control slider = tool.control("Cone.height", "QSlider");
        const QString value = tool.value("height");
        tool.click(at(slider, 0.47));
        tool.press({"Tab", "Tab", "shift+Tab", "Return"});
        tool.drag(at(slider, 0.47), at(slider, 0.47) + QPoint(1, 0));
        tool.press("ctrl+z");
        tool.dragAndHold(at(slider, 0.47), at(slider, 0.8));
        QTRY_VERIFY(tool.value("height").toFloat() > 3.5F);
        tool.move(at(slider, 0.47));
        tool.release();
        QTRY_COMPARE(tool.value("height"), value);
        QVERIFY(!tool.isModified());
    }

    void escapeEndsADrag()
    {
        Desktop tool("Cone { height 2.3456789 }\nMaterial { shininess 0.33333334 }");
        select(tool, "Cone");
        const Control slider = tool.control("Cone.height", "QSlider");
        const QString value = tool.value("height");
        tool.dragAndHold(at(slider, 0.47), at(slider, 0.8));
        QTRY_VERIFY(tool.value("height").toFloat() > 3.5F);
        tool.press("Escape");
        QTRY_COMPARE(tool.value("height"), value);
        tool.move(at(slider, 0.6));
        tool.release();
        QTest::qWait(100);
        QCOMPARE(tool.value("height"), value);
        QVERIFY(!tool.isModified());

        select(tool, "Material");
        tool.doubleClick(tool.cell("Material.shininess", 0));
        const Control cell = tool.control("Material.shininess", "QSlider");
        const QString shininess = tool.value("shininess");
        tool.dragAndHold(at(cell, 1 / 3.), at(cell, 0.9));
        QTRY_VERIFY(tool.value("shininess").toFloat() > 0.7F);
        tool.press("Escape");
        QTRY_COMPARE(tool.value("shininess"), shininess);
        tool.release();
        tool.press("ctrl+z");
        QCOMPARE(tool.value("shininess"), shininess);
        QVERIFY(!tool.isModified());
    }

    void spansHaveTheLimitsOfTheField()
    {
        Desktop tool("SpotLight { }\nRotationXYZ { }\nOrthographicCamera { height 0.003 }\nSwitch { }");
        const struct {
            const char *node;
            const char *field;
            float low;
            float high;
        } fields[] = {{"SpotLight", "cutOffAngle", 0, 3.14159F},
                      {"RotationXYZ", "angle", -3.14159F, 3.14159F},
                      {"OrthographicCamera", "height", 0, 0.01F},
                      {"Switch", "whichChild", -3, 10}};
        for (const auto &[node, field, low, high] : fields) {
            select(tool, node);
            const QByteArray name = QByteArray(node) + '.' + field;
            const auto slider = [&] { return tool.control(name.constData(), "QSlider"); };
            tool.click(slider());
            tool.press("End");
            QTRY_COMPARE(tool.value(field).toFloat(), high);
            const int right = slider().facts["value"].toInt();
            tool.press("Home");
            QTRY_COMPARE(tool.value(field).toFloat(), low);
            QVERIFY(slider().facts["value"].toInt() < right);
        }
    }

    void theSpanIsThatOfTheValueAgain()
    {
        Desktop tool("Cone { }\nCone { height 30 }");
        select(tool, "Cone");
        const auto place = [&] { return tool.control("Cone.height", "QSlider").facts["value"].toInt(); };
        const int before = place();
        tool.doubleClick(tool.control("Cone.height", "QLineEdit"));
        tool.type(QStringLiteral("5000"));
        tool.press("Return");
        QTRY_COMPARE(tool.value("height"), QStringLiteral("5000"));
        tool.press("ctrl+z");
        QTRY_COMPARE(place(), before);
        tool.selectRow("Cone", 1);
        tool.selectRow("Cone", 0);
        QTRY_COMPARE(place(), before);
        tool.drag(at(tool.control("Cone.height", "QSlider"), 0.4), at(tool.control("Cone.height", "QSlider"), 0.8));
        QTRY_VERIFY(std::abs(tool.value("height").toFloat() - 4) < 0.3F);
    }

    void undoneStepsLeaveNoTrace()
    {
        Desktop tool("Material { }\nCone { }");
        select(tool, "Material");
        tool.doubleClick(tool.cell("Material.shininess", 0));
        tool.click(at(tool.control("Material.shininess", "QSlider"), 0.9));
        tool.press({"Right", "Left", "ctrl+z"});
        QTRY_VERIFY(tool.isFlagged("shininess", "default"));
        select(tool, "Cone");
        tool.click(tool.control("Cone.height", "m_ignoreButton"));
        QTRY_VERIFY(tool.isFlagged("height", "ignored"));
        tool.press({"ctrl+z"});
        QTRY_VERIFY(!tool.isFlagged("height", "ignored"));
        QVERIFY(tool.isFlagged("height", "default"));
        QVERIFY(!tool.isModified());
    }
};

QTEST_MAIN(TestDesktopSliders)

#include "tst_desktop_sliders.moc"
