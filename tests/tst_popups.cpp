// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "EditorKinds.h"
#include "TestSupport.h"
#include "support/PopupPlacement.h"

#include <HbSFBox3sWidget.h>
#include <HbSFImageLabel.h>
#include <HbSFImageWidget.h>
#include <HbSFMatrixWidget.h>

#include <QGridLayout>
#include <QScreen>
#include <QValidator>

#include <Inventor/fields/SoSFImage.h>

namespace
{
/// A grid of 2 by 3, of which everything is seen.
class Grid : public HbPopupWidget
{
public:
    explicit Grid(HbFieldEditorCommandManager *manager = nullptr)
        : HbPopupWidget("", manager, 2, 3, nullptr, nullptr, {})
    {
    }
    using HbPopupWidget::editAt;
    void setCommandValue() override { ++commands; }
    void applyChanges() override { ++writes; }
    int commands = 0;
    int writes = 0;
};

/// An editor with a popup and a field, shown.
template <class Editor> struct Popup {
    explicit Popup(SoField *field) : editor("x", nullptr, nullptr, nullptr, {}) { present(editor, field); }

    /// What stands in that place on the screen.
    QLineEdit *at(int row, int column) const
    {
        return qobject_cast<QLineEdit *>(
            static_cast<QGridLayout *>(frame->layout())->itemAtPosition(row, column)->widget());
    }

    Editor editor;
    QPushButton *button = editor.template findChild<QPushButton *>("m_editButton");
    QFrame *frame = editor.template findChild<QFrame *>("m_popupFrame");
};

constexpr auto identity = "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1";
} // namespace

/// The grids in which matrices and boxes are edited, and the enlarged view of images.
class TestPopups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Complaints::listen(); }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void placement()
    {
        const QRect one(0, 0, 1000, 800);
        const QRect left(-1000, -100, 2000, 900); // a screen to the left of the first, and higher
        const std::tuple<QPoint, QRect, QPoint, QPoint> rows[] = {
            {{880, 730}, one, {880, 730}, {880, 730}}, // just fits
            {{881, 20}, one, {761, 20}, {761, 20}}, // beyond the right
            {{10, 731}, one, {10, 661}, {10, 661}}, // beyond the bottom
            {{1200, 850}, one, {1080, 780}, {900, 750}}, // the button is half outside
            {{-50, -60}, one, {-50, -60}, {0, 0}}, // left of it
            {{-990, -90}, left, {-990, -90}, {-990, -90}}, // another screen
            {{990, 790}, left, {870, 720}, {870, 720}}, // its corner
        };
        const QSize popup(100, 50);
        for (const auto &[corner, desktop, placed, kept] : rows) {
            QCOMPARE(PopupPlacement::place(corner, desktop, popup, QSize(20, 20)), placed);
            QCOMPARE(PopupPlacement::kept(placed, desktop, popup), kept);
        }
        QCOMPARE(PopupPlacement::kept({300, 300}, QRect(0, 0, 200, 200), QSize(400, 400)), QPoint(0, 0));
    }

    void staysOnTheScreen()
    {
        const auto field = makeField("SFMatrix", identity);
        for (const QPointF part : {QPointF(0, 0), QPointF(0, 0.5), QPointF(0, 1), QPointF(1, 0.5), QPointF(1, 1)}) {
            Popup<HbSFMatrixWidget> popup(field.get());
            const QRect screen = popup.editor.screen()->geometry();
            const QSize room = screen.size() - popup.editor.size();
            popup.editor.move(screen.x() + int(room.width() * part.x()), screen.y() + int(room.height() * part.y()));
            popup.button->click();
            QVERIFY(popup.frame->isVisible());
            QVERIFY(screen.contains(popup.frame->geometry()));
            QVERIFY(popup.frame->rect().contains(popup.at(3, 3)->geometry()));
            const QRect button(popup.button->mapToGlobal(QPoint()), popup.button->size());
            QVERIFY(!popup.frame->geometry().intersects(button.adjusted(1, 1, -1, -1)));
        }
    }

    void gridIsTheValue()
    {
        const auto matrix = makeField("SFMatrix", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16");
        const Popup<HbSFMatrixWidget> matrixEditor(matrix.get());
        for (int number = 1; number <= 16; ++number)
            QCOMPARE(matrixEditor.at((number - 1) / 4, (number - 1) % 4)->text(), QString::number(number));

        Grid grid;
        grid.revertCursorPosition();
        QVERIFY(!grid.edited());
        grid.findChild<QLineEdit *>("lineEdit")->setModified(true);
        QVERIFY(!grid.edited()); // the line is not typed into
        grid.editAt(1, 2)->setModified(true);
        QVERIFY(grid.edited());
    }

    void returnGoesDirectly()
    {
        RecordingManager manager;
        Grid managed(&manager);
        Grid alone;
        for (Grid *const grid : {&managed, &alone})
            QTest::keyClick(grid->editAt(0, 0), Qt::Key_Return);
        QCOMPARE(manager.takeLog(), QStringList("sfield null"));
        QVERIFY(managed.commands == 0 && managed.writes == 0 && alone.commands == 0 && alone.writes == 1);
    }

    void validators()
    {
        const std::tuple<int, QStringList, QStringList> rows[] = {
            {0, {"abc", ""}, {}},
            {1, {"-32768", "32767"}, {"32768", "1.5", "", "-"}},
            {3, {"3.40282e+38", "-1.234567"}, {"3.5e38", "0.0123457", "1,5", "1e"}},
            {4, {"1e308", "0.0123456789"}, {"x", "1,5"}},
            {7, {"32767"}, {"32768"}}, // none of them: that of before
        };
        for (const auto &[kind, accepted, refused] : rows) {
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
    }

    void keyboardAllTheWay()
    {
        const auto field = makeField("SFBox3s", "1 2 3 4 5 6");
        Popup<HbSFBox3sWidget> popup(field.get());
        QVERIFY(!popup.editor.findChild<QLineEdit *>("lineEdit")->isEnabled());
        popup.button->setFocus(Qt::TabFocusReason);
        QVERIFY(popup.button->hasFocus());
        QTest::keyClick(popup.button, Qt::Key_Space);
        QVERIFY(popup.frame->isVisible());
        for (int place = 0; place < 6; ++place) {
            QCOMPARE(QApplication::focusWidget(), popup.at(place / 3, place % 3));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        enter(popup.at(1, 2), "60");
        QCOMPARE(textOf(*field), "1 2 3 4 5 60");
    }

    /// Commits a number and drops what is unfinished.
    void closing()
    {
        for (const int way : {0, 1, 2}) {
            const auto field = makeField("SFBox3s", "1 2 3 4 5 6");
            const Popup<HbSFBox3sWidget> popup(field.get());
            for (const char *const typed : {"10", "-"}) {
                popup.button->click();
                retype(popup.at(0, 0), QLatin1String(typed));
                if (way == 0)
                    popup.button->click();
                else if (way == 1)
                    QTest::keyClick(popup.at(0, 0), Qt::Key_Escape);
                else
                    QTest::mouseClick(popup.frame, Qt::LeftButton, {}, QPoint(-5, -5));
                QVERIFY(!popup.frame->isVisible());
                QCOMPARE(textOf(*field), "10 2 3 4 5 6");
            }
            popup.button->click();
            QCOMPARE(popup.at(0, 0)->text(), "10");
        }
    }

    void images()
    {
        const std::tuple<int, QByteArray, QColor, QColor> rows[] = {
            // of 3 by 2 pixels
            {1, {"\x80\x80\x80\x40\0\0", 6}, QColor(128, 128, 128), QColor(64, 64, 64)},
            {2, {"\0\xf8\0\xf8\0\xf8\xe0\x07\0\0\0\0", 12}, QColor(255, 0, 0), QColor(0, 255, 0)},
            {3, QByteArray("\xff\x80\0", 3) + QByteArray(15, '\0'), QColor(Qt::black), QColor(255, 128, 0)},
            {4, QByteArray("\0\0\xff\xff", 4) + QByteArray(20, '\0'), QColor(0, 0, 0, 0), QColor(0, 0, 255)},
        };
        for (const auto &[components, pixels, top, bottom] : rows) {
            SoSFImage field;
            field.setValue(SbVec2s(3, 2), components, reinterpret_cast<const unsigned char *>(pixels.constData()));
            QPixmap pixmap;
            HbSFImageWidget::getPixmapFromField(&field, pixmap);
            const QImage image = pixmap.toImage();
            QCOMPARE(image.size(), QSize(3, 2));
            QCOMPARE(image.pixelColor(2, 0), top);
            QCOMPARE(image.pixelColor(0, 1), bottom); // where rows taken for padded would show another pixel
        }
    }

    void enlargedView()
    {
        for (const QSize &size : {QSize(512, 128), QSize(0, 0)}) {
            SoSFImage field;
            const QByteArray pixels(size.width() * size.height() * 3, '\x7f');
            field.setValue(SbVec2s(short(size.width()), short(size.height())), 3,
                           size.isEmpty() ? nullptr : reinterpret_cast<const unsigned char *>(pixels.constData()));
            HbSFImageWidget editor("x", nullptr, nullptr, nullptr, {});
            present(editor, &field);
            QCOMPARE(HbSFImageLabel(16, 16, nullptr, nullptr).objectName(), "HbSFImageLabel");
            auto *const box = editor.findChild<QLabel *>("m_imageBox");
            auto *const view = editor.findChild<QLabel *>("pixmapLabel");
            editor.grab();
            QCOMPARE(view->size(), size.boundedTo(QSize(256, 128)));
            QTest::mouseMove(box, QPoint(3, 3));
            QTest::qWait(10);
            QCOMPARE(view->isVisible(), !size.isEmpty());
            if (!size.isEmpty()) {
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
    }
};

QTEST_MAIN(TestPopups)
#include "tst_popups.moc"
