// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "EditorKinds.h"
#include "TestSupport.h"
#include "support/PopupPlacement.h"

#include <HbSFBox3sWidget.h>
#include <HbSFImageWidget.h>
#include <HbSFMatrixWidget.h>

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QValidator>

#include <Inventor/fields/SoSFImage.h>

namespace
{
/// A grid of 2 by 3, of which everything is seen.
class Grid : public HbPopupWidget
{
public:
    explicit Grid(HbFieldEditorCommandManager *manager = nullptr) : HbPopupWidget(manager, 2, 3, nullptr, nullptr, {})
    {
    }
    using HbPopupWidget::editAt;
    using HbPopupWidget::m_edits;
};

/// An editor with a popup and a field, shown.
template <class Editor> struct Popup {
    Popup(SoField *field, HbFieldEditorCommandManager *manager = nullptr) : editor("x", manager, nullptr, nullptr, {})
    {
        editor.setField(field);
        editor.refresh();
        editor.show();
        QApplication::setActiveWindow(&editor);
    }

    /// What stands in that place on the screen.
    QLineEdit *at(int row, int column) const
    {
        return qobject_cast<QLineEdit *>(
            static_cast<QGridLayout *>(frame->layout())->itemAtPosition(row, column)->widget());
    }

    Editor editor;
    QPushButton *button = editor.template findChild<QPushButton *>(QStringLiteral("m_editButton"));
    QFrame *frame = editor.template findChild<QFrame *>(QStringLiteral("m_popupFrame"));
};

constexpr auto identity = "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1";
} // namespace

/// The grids in which matrices and boxes are edited, and the enlarged view of images.
class TestPopups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Complaints::listen(); }
    void init()
    {
        Complaints::expect(Complaints::missingDefaultSlot);
        Complaints::expect(Complaints::missingApplySlot);
    }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void placement_data()
    {
        QTest::addColumn<QPoint>("corner");
        QTest::addColumn<QRect>("desktop");
        QTest::addColumn<QPoint>("placed");
        QTest::addColumn<QPoint>("kept");
        const QRect one(0, 0, 1000, 800);
        const QRect left(-1000, -100, 2000, 900); // a screen to the left of the first, and higher
        QTest::newRow("fits") << QPoint(10, 20) << one << QPoint(10, 20) << QPoint(10, 20);
        QTest::newRow("just fits") << QPoint(880, 730) << one << QPoint(880, 730) << QPoint(880, 730);
        QTest::newRow("beyond the right") << QPoint(881, 20) << one << QPoint(761, 20) << QPoint(761, 20);
        QTest::newRow("beyond the bottom") << QPoint(10, 731) << one << QPoint(10, 661) << QPoint(10, 661);
        QTest::newRow("button half outside") << QPoint(1200, 850) << one << QPoint(1080, 780) << QPoint(900, 750);
        QTest::newRow("left of it") << QPoint(-50, -60) << one << QPoint(-50, -60) << QPoint(0, 0);
        QTest::newRow("other screen") << QPoint(-990, -90) << left << QPoint(-990, -90) << QPoint(-990, -90);
        QTest::newRow("its corner") << QPoint(990, 790) << left << QPoint(870, 720) << QPoint(870, 720);
    }
    void placement()
    {
        QFETCH(QPoint, corner);
        QFETCH(QRect, desktop);
        const QSize popup(100, 50);
        const QPoint placed = PopupPlacement::place(corner, desktop, popup, QSize(20, 20));
        QTEST(placed, "placed");
        QTEST(PopupPlacement::kept(placed, desktop, popup), "kept");
    }
    void largePopupKeepsItsStart()
    {
        QCOMPARE(PopupPlacement::kept({300, 300}, QRect(0, 0, 200, 200), QSize(400, 400)), QPoint(0, 0));
    }

    void staysOnTheScreen_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        for (const double x : {0.0, 1.0})
            for (const double y : {0.0, 0.5, 1.0})
                QTest::addRow("%g %g", x, y) << x << y;
    }
    void staysOnTheScreen()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        const auto field = makeField("SFMatrix", identity);
        Popup<HbSFMatrixWidget> popup(field.get());
        const QRect screen = popup.editor.screen()->geometry();
        const QSize room = screen.size() - popup.editor.size();
        popup.editor.move(screen.x() + int(room.width() * x), screen.y() + int(room.height() * y));
        popup.button->click();
        QVERIFY(popup.frame->isVisible());
        QVERIFY(screen.contains(popup.frame->geometry()));
        QVERIFY(popup.frame->rect().contains(popup.at(3, 3)->geometry()));
        const QRect button(popup.button->mapToGlobal(QPoint()), popup.button->size());
        QVERIFY(!popup.frame->geometry().intersects(button.adjusted(1, 1, -1, -1)));
    }

    void gridIsTheValue()
    {
        const auto matrix = makeField("SFMatrix", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16");
        const auto box = makeField("SFBox3s", "1 2 3 4 5 6");
        const Popup<HbSFMatrixWidget> matrixEditor(matrix.get());
        const Popup<HbSFBox3sWidget> boxEditor(box.get());
        for (int number = 1; number <= 16; ++number)
            QCOMPARE(matrixEditor.at((number - 1) / 4, (number - 1) % 4)->text(), QString::number(number));
        for (int number = 1; number <= 6; ++number)
            QCOMPARE(boxEditor.at((number - 1) / 3, (number - 1) % 3)->text(), QString::number(number));

        Grid grid;
        QList<std::size_t> used;
        for (std::size_t i = 0; i < grid.m_edits.size(); ++i)
            if (grid.m_edits[i])
                used << i;
        QCOMPARE(used, QList<std::size_t>({0, 1, 3, 4, 6, 7}));
        QCOMPARE(grid.m_edits.size(), std::size_t(8));
        grid.setValidator(1); // walks over the gaps
        grid.revertCursorPosition();
        QVERIFY(!grid.edited());
        grid.findChild<QLineEdit *>(QStringLiteral("lineEdit"))->setModified(true);
        QVERIFY(!grid.edited()); // the line is not typed into
        grid.editAt(1, 2)->setModified(true);
        QVERIFY(grid.edited());
    }

    void validators_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QStringList>("accepted");
        QTest::addColumn<QStringList>("refused");
        QTest::newRow("none") << 0 << QStringList({"abc", ""}) << QStringList();
        QTest::newRow("16 bits") << 1 << QStringList({"-32768", "32767"}) << QStringList({"32768", "1.5", "", "-"});
        QTest::newRow("32 bits") << 2 << QStringList({"-2147483648", "2147483647"}) << QStringList({"2147483648"});
        QTest::newRow("floats") << 3 << QStringList({"3.40282e+38", "-1.234567"})
                                << QStringList({"3.5e38", "0.0123457", "1,5", "1e"});
        QTest::newRow("reals") << 4 << QStringList({"1e308", "0.0123456789"}) << QStringList({"x", "1,5"});
        QTest::newRow("unknown") << 7 << QStringList({"32767"}) << QStringList({"32768"}); // that of before
        QTest::newRow("negative") << -1 << QStringList({"32767"}) << QStringList({"32768"});
    }
    void validators()
    {
        QFETCH(int, kind);
        QFETCH(QStringList, accepted);
        QFETCH(QStringList, refused);
        Grid grid;
        grid.setValidator(1);
        grid.setValidator(kind);
        QLineEdit *const edit = grid.editAt(1, 2);
        QCOMPARE(edit->findChildren<QValidator *>().size(), kind == 0 ? 0 : 1); // the replaced one is gone
        for (const QString &text : accepted + refused) {
            edit->setText(text);
            QVERIFY2(edit->hasAcceptableInput() == accepted.contains(text), qPrintable(text));
        }
    }

    void keyboardAllTheWay()
    {
        const auto field = makeField("SFBox3s", "1 2 3 4 5 6");
        Popup<HbSFBox3sWidget> popup(field.get());
        QVERIFY(!popup.editor.findChild<QLineEdit *>(QStringLiteral("lineEdit"))->isEnabled());
        popup.button->setFocus(Qt::TabFocusReason);
        QVERIFY(popup.button->hasFocus());
        QTest::keyClick(popup.button, Qt::Key_Space);
        QVERIFY(popup.frame->isVisible());
        for (int place = 0; place < 6; ++place) {
            QCOMPARE(QApplication::focusWidget(), popup.at(place / 3, place % 3));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        retype(popup.at(1, 2), QStringLiteral("60"));
        QTest::keyClick(popup.at(1, 2), Qt::Key_Return);
        QCOMPARE(textOf(*field), QStringLiteral("1 2 3 4 5 60"));
        QTest::keyClick(popup.at(1, 2), Qt::Key_Escape);
        QVERIFY(!popup.frame->isVisible());
        QVERIFY(popup.editor.isVisible());
    }

    void returnReportsToAManager()
    {
        RecordingManager manager;
        const auto field = makeField("SFBox3s", "1 2 3 4 5 6");
        Popup<HbSFBox3sWidget> popup(field.get(), &manager);
        popup.button->click();
        QTest::keyClick(popup.at(1, 1), Qt::Key_Return); // even if nothing was edited
        QCOMPARE(manager.log, QStringList({"sfield null"}));
    }

    void closing_data()
    {
        QTest::addColumn<int>("way");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("written");
        const char *const ways[] = {"button", "Escape", "click outside"};
        for (int way = 0; way < 3; ++way) {
            QTest::addRow("%s commits a number", ways[way]) << way << "10"
                                                            << "10 2 3 4 5 6";
            QTest::addRow("%s drops what is unfinished", ways[way]) << way << "-"
                                                                    << "1 2 3 4 5 6";
        }
    }
    void closing()
    {
        QFETCH(int, way);
        QFETCH(QString, typed);
        const auto field = makeField("SFBox3s", "1 2 3 4 5 6");
        Popup<HbSFBox3sWidget> popup(field.get());
        popup.button->click();
        retype(popup.at(0, 0), typed);
        if (way == 0)
            popup.button->click();
        else if (way == 1)
            QTest::keyClick(popup.at(0, 0), Qt::Key_Escape);
        else
            QTest::mouseClick(popup.frame, Qt::LeftButton, {}, QPoint(-5, -5));
        QVERIFY(!popup.frame->isVisible());
        QTEST(textOf(*field), "written");
        popup.button->click();
        QVERIFY(popup.frame->isVisible());
        QCOMPARE(popup.at(0, 0)->text(), textOf(*field).section(QLatin1Char(' '), 0, 0));
    }

    void images_data()
    {
        QTest::addColumn<int>("components");
        QTest::addColumn<QByteArray>("pixels"); ///< of 3 by 2
        QTest::addColumn<QColor>("top");
        QTest::addColumn<QColor>("bottom");
        const QColor black(Qt::black);
        QTest::newRow("grey") << 1 << QByteArray("\x80\x80\x80\x40\0\0", 6) << QColor(128, 128, 128)
                              << QColor(64, 64, 64);
        QTest::newRow("16-bit colour") << 2 << QByteArray("\0\xf8\0\xf8\0\xf8\xe0\x07\0\0\0\0", 12) << QColor(255, 0, 0)
                                       << QColor(0, 255, 0);
        QTest::newRow("colour") << 3 << QByteArray("\xff\x80\0", 3) + QByteArray(15, '\0') << black
                                << QColor(255, 128, 0);
        QTest::newRow("with alpha") << 4 << QByteArray("\0\0\xff\xff", 4) + QByteArray(20, '\0') << QColor(0, 0, 0, 0)
                                    << QColor(0, 0, 255, 255);
    }
    void images()
    {
        QFETCH(int, components);
        QFETCH(QByteArray, pixels);
        SoSFImage field;
        field.setValue(SbVec2s(3, 2), components, reinterpret_cast<const unsigned char *>(pixels.constData()));
        QPixmap pixmap;
        HbSFImageWidget::getPixmapFromField(&field, pixmap);
        const QImage image = pixmap.toImage();
        QCOMPARE(image.size(), QSize(3, 2));
        QTEST(image.pixelColor(2, 0), "top");
        QTEST(image.pixelColor(0, 1), "bottom"); // where rows taken for padded would show another pixel
    }

    void enlargedView_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("shown");
        QTest::newRow("small") << QSize(5, 3) << QSize(5, 3);
        QTest::newRow("wide") << QSize(512, 128) << QSize(256, 128);
        QTest::newRow("empty") << QSize(0, 0) << QSize(0, 0);
    }
    void enlargedView()
    {
        QFETCH(QSize, size);
        QFETCH(QSize, shown);
        SoSFImage field;
        const QByteArray pixels(size.width() * size.height() * 3, '\x7f');
        field.setValue(SbVec2s(short(size.width()), short(size.height())), 3,
                       size.isEmpty() ? nullptr : reinterpret_cast<const unsigned char *>(pixels.constData()));
        HbSFImageWidget editor("x", nullptr, nullptr, nullptr, {});
        editor.setField(&field);
        editor.refresh();
        editor.show();
        auto *const box = editor.findChild<QLabel *>(QStringLiteral("m_imageBox"));
        auto *const view = editor.findChild<QLabel *>(QStringLiteral("pixmapLabel"));
        editor.grab();
        QCOMPARE(view->size(), shown);
        QTest::mouseMove(box, QPoint(3, 3));
        QTest::qWait(10);
        QCOMPARE(view->isVisible(), !size.isEmpty());
        if (!size.isEmpty()) {
            const QPoint place = view->pos();
            editor.move(editor.pos() + QPoint(50, 50));
            QTest::mouseMove(box, QPoint(5, 5));
            QCOMPARE(view->pos(), place);
            QTest::mouseClick(view, Qt::LeftButton, {}, QPoint(-5, -5));
            QVERIFY(!view->isVisible());
        }
        SoSFImage before;
        before.copyFrom(field);
        editor.applyChanges();
        QVERIFY(field.isSame(before));
        editor.setField(nullptr);
        editor.refresh();
        QVERIFY(view->size().isEmpty()); // an image that is gone leaves nothing behind
    }
};

QTEST_MAIN(TestPopups)
#include "tst_popups.moc"
