// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Desktop.h"

namespace
{
const QByteArray camera = "PerspectiveCamera { position 0 0 12 focalDistance 12 }\n";

bool isRed(const QColor &colour)
{
    return colour.red() > 60 && colour.green() < 30 && colour.blue() < 30;
}
bool isGreen(const QColor &colour)
{
    return colour.green() > 60 && colour.red() < 30 && colour.blue() < 30;
}

/// The bounding box, in the view, of the pixels that a test is true of.
QRect boxOf(Desktop &tool, bool (*fits)(const QColor &))
{
    const QRect view = tool.view();
    const QImage picture = tool.screen().copy(view);
    QRect box;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (fits(picture.pixelColor(x, y)))
                box |= QRect(x, y, 1, 1);
    return box;
}

/// The middle of that box on the screen, once it is there and stays.
QPoint placeOf(Desktop &tool, bool (*fits)(const QColor &))
{
    QPoint place;
    QPoint before;
    do {
        before = place;
        QTest::qWait(50);
        const QRect box = boxOf(tool, fits);
        place = box.isEmpty() ? QPoint() : tool.view().topLeft() + box.center();
    } while (tool.isRunning() && (place.isNull() || place != before));
    return place;
}

QImage picture(Desktop &tool)
{
    return tool.screen().copy(tool.view());
}
} // namespace

/// What the view shows, and what the mouse and the keys do to it.
class TestDesktopView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startWindowManager(); }

    void nearCoversFarAndSeeThroughShowsTheScene()
    {
        Desktop tool(camera
                     + "Separator { Material { diffuseColor 1 0 0 } Cube { } }\n"
                       "Separator { Translation { translation 0 0 -5 } Material { diffuseColor 0 1 0 } "
                       "Cube { width 5 height 5 } }\n"
                       "Separator { LightModel { model BASE_COLOR } Translation { translation 3 0 0 } "
                       "Material { diffuseColor 1 1 1 transparency 0.5 } "
                       "VertexProperty { vertex [ -1 -1 0, 1 -1 0, 1 1 0, -1 1 0 ] } FaceSet { numVertices 4 } }");
        const QPoint middle = placeOf(tool, isRed);
        QVERIFY(isRed(tool.pixel(middle)));
        const QRect red = boxOf(tool, isRed);
        const QRect green = boxOf(tool, isGreen);
        QVERIFY(green.contains(red));
        const QColor behind = picture(tool).pixelColor(2, 2);
        const QColor through = tool.pixel(middle + QPoint(red.width() * 3 / 2, 0)); // white over the background
        QVERIFY2(std::abs(through.red() - (255 + behind.red()) / 2) < 8, qPrintable(through.name()));
    }

    void aClickSelectsWhatIsUnderTheMouse()
    {
        for (const char *eye :
             {"OrthographicCamera { position 10 10 10 orientation -0.5054 0.8364 0.2122 0.9151 height 9 "
              "focalDistance 17 }",
              "PerspectiveCamera { position 0 9 0 orientation 1 0 0 -1.5708 focalDistance 9 }"}) {
            Desktop tool(QByteArray(eye)
                         + "Separator { Material { diffuseColor 1 0 0 } DEF Red Cube { } }\n"
                           "Separator { Translation { translation 2 0 -3 } Material { diffuseColor 0 1 0 } "
                           "DEF Green Sphere { } }");
            tool.click(placeOf(tool, isRed));
            QTRY_COMPARE(tool.selectedName(), QStringLiteral("Red"));
            tool.click(placeOf(tool, isGreen));
            QTRY_COMPARE(tool.selectedName(), QStringLiteral("Green"));
            tool.click(tool.view().topLeft() + QPoint(4, 4));
            QTRY_COMPARE(tool.selectedType(), QString());
        }
    }

    void aRotorTurnsAndNothingElseMoves()
    {
        Desktop tool(camera
                     + "DEF Wheel Rotor { rotation 0 0 1 0 speed 0.5 } Material { diffuseColor 1 0 0 } Cube { }");
        placeOf(tool, isRed);
        const QImage before = picture(tool);
        QTRY_VERIFY(picture(tool) != before);
        tool.selectRow("Rotor");
        tool.click(tool.control("Rotor.on", "QCheckBox"));
        QTRY_COMPARE(tool.value("on"), QStringLiteral("FALSE"));
        QTest::qWait(100);
        const QImage still = picture(tool);
        QTest::qWait(200);
        QCOMPARE(picture(tool), still);
    }

    void theWheelZoomsToTheMouseAndHomeIsHome()
    {
        Desktop tool(camera
                     + "Translation { translation 1.5 1 0 } Material { diffuseColor 1 0 0 } "
                       "Cube { width 0.5 height 0.5 depth 0.5 }");
        placeOf(tool, isRed);
        const QImage home = picture(tool);
        const QRect small = boxOf(tool, isRed);
        const QPoint mouse = tool.view().topLeft() + small.center();
        tool.wheel(mouse, 4);
        QTRY_VERIFY(boxOf(tool, isRed).width() > 3 * small.width() / 2);
        QTRY_VERIFY((boxOf(tool, isRed).center() - small.center()).manhattanLength() < small.width() / 2);
        tool.drag(mouse, mouse + QPoint(90, 40));
        tool.press("alt+Home");
        QTRY_COMPARE(picture(tool), home);
        tool.press("Right"); // of the view, which has been clicked at
        QTRY_VERIFY(picture(tool) != home);
        tool.choose("&View", "&Home");
        QTRY_COMPARE(picture(tool), home);
    }

    void theSelectedShapeIsOutlinedAndFramed()
    {
        Desktop tool(camera
                     + "Separator { Translation { translation 2 1 0 } LightModel { model BASE_COLOR } "
                       "Material { diffuseColor 1 0 0 } DEF Box Cube { width 0.3 height 0.3 depth 0.3 } }\n"
                       "Separator { Translation { translation -3 0 0 } Sphere { radius 0.1 } }");
        placeOf(tool, isRed);
        const QImage before = picture(tool);
        const QRect small = boxOf(tool, isRed);
        tool.click(tool.view().topLeft() + small.center());
        QTRY_VERIFY(picture(tool).pixelColor(small.left() - 2, small.center().y())
                    != before.pixelColor(small.left() - 2, small.center().y()));
        QCOMPARE(picture(tool).pixelColor(small.center()), before.pixelColor(small.center()));
        tool.press("f");
        QTRY_VERIFY(boxOf(tool, isRed).height() > tool.view().width() / 2);
        QVERIFY((boxOf(tool, isRed).center() - picture(tool).rect().center()).manhattanLength() < 5);
        QVERIFY(!tool.isModified());
    }
};

QTEST_MAIN(TestDesktopView)

#include "tst_desktop_view.moc"
