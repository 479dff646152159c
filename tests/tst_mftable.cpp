// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "AllEditors.h"
#include "Editors/mfield/TextElision.h"
#include "TestSupport.h"

#include <HbIntSlider.h>
#include <HbMFieldTableItemDelegate.h>
#include <HbRangeComponent.h>
#include <HbRealSlider.h>
#include <HbTablePopupLineEdit.h>
#include <HbUIntSlider.h>

#include <Inventor/fields/SoFields.h>

namespace
{
using Manager = HbFieldEditorCommandManager;

/// An editor that is shown, with a field; counts what its cells ask for.
template <class Widget, class Field> struct Shown : Widget {
    template <class... Arguments> explicit Shown(const QStringList &values, Arguments... arguments)
        : Widget("x", arguments..., nullptr, nullptr, {})
    {
        field.set(("[ " + values.join(" , ") + " ]").toUtf8().constData());
        this->resize(400, 400);
        present(*this, &field);
        m_table->setFocus();
    }
    QString getCellText(int row, int col, int limit) const override
    {
        ++asked;
        return Widget::getCellText(row, col, limit);
    }
    QRect cell(int row, int col) const { return m_table->visualRect(m_table->model()->index(row, col)); }
    void click(int row, int col)
    {
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {}, cell(row, col).center());
        QCoreApplication::processEvents();
    }
    QFrame *popup() const { return this->template findChild<QFrame *>("m_popupFrame"); }
    QPushButton *button(const char *name) const { return this->template findChild<QPushButton *>(name); }

    using Widget::m_table;
    Field field;
    mutable int asked = 0;
};
using Points = Shown<HbMFVec3fWidget, SoMFVec3f>;
using Floats = Shown<HbMFFloatWidget, SoMFFloat>;
using Colors = Shown<HbMFColorWidget, SoMFColor>;
using Matrices = Shown<HbMFMatrixWidget, SoMFMatrix>;
constexpr Manager *nobody = nullptr;

QStringList rows(int count, const char *value = "0 0 0")
{
    QStringList values;
    while (values.size() < count)
        values << value;
    return values;
}

/// Counts what a widget paints.
struct PaintCount : QObject {
    explicit PaintCount(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
    QRegion region;
};

constexpr char identity[] = "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1";
constexpr int wholeWait = 450; ///< milliseconds in which a table compares its cells twice
} // namespace

/// The table of values: rows, cell editors, painting; and the tables of colours and matrices.
class TestMFTable : public QObject
{
    Q_OBJECT

    template <class Slider, class Widget, class Field> static void checkSlider(const char *typed, const QString &sent)
    {
        RecordingManager manager;
        Shown<Widget, Field> editor(rows(3, "1"), &manager);
        editor.m_table->setIntEditorRange(2, 7);
        editor.m_table->setDoubleEditorRange(2, 7);
        editor.m_table->setBoundedValue(true);
        editor.m_table->setCurrentCell(1, 0);
        QTest::keyClick(editor.m_table, Qt::Key_5); // opens the editor and is typed in it
        auto *const edit = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(edit && dynamic_cast<Slider *>(edit->parentWidget()));
        QCOMPARE(edit->text(), "5");
        for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Delete, Qt::Key_Shift})
            QTest::keyClick(edit, key);
        retype(edit, typed);
        editor.m_table->editorDestroyed(nullptr);
        editor.m_table->editorDestroyed(edit->parent()); // which has the focus: the call is ignored
        QCOMPARE(manager.takeLog(), QStringList());
        QTest::keyClick(edit, Qt::Key_Return);
        QCoreApplication::processEvents();
        QStringList reports = manager.takeLog();
        QCOMPARE(reports.size(), commitsOnReturn);
        reports.removeDuplicates();
        QCOMPARE(reports, QStringList({sent}));
        QVERIFY(editor.m_table->hasFocus());
        QCOMPARE(editor.m_table->currentRow(), 1);

        QLineEdit *const again = openCell(editor.m_table, 2, 0);
        retype(again, "4");
        QTest::keyClick(again, Qt::Key_Escape);
        QCoreApplication::processEvents();
        QCOMPARE(manager.takeLog(), QStringList());
        QVERIFY(editor.m_table->hasFocus());
    }

private Q_SLOTS:
    void initTestCase() { Complaints::listen(); }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void keys()
    {
        const std::tuple<int, int, Qt::Key, QString, int> rowsOfKeys[] = {
            {5, 3, Qt::Key_Plus, "addRows 4 1", 6},
            {0, -1, Qt::Key_Plus, "addRows 0 1", 1},
            {2, -1, Qt::Key_Plus, "addRows 0 1", 3},
            {5, 3, Qt::Key_Minus, "deleteRows 3 1", 4},
            {5, 4, Qt::Key_Delete, "deleteRows 4 1", 4},
            {1, 0, Qt::Key_Delete, "deleteRows 0 1", 0},
            {5, -1, Qt::Key_Delete, "", 5},
            {0, -1, Qt::Key_Delete, "", 0},
        };
        for (const bool refreshing : {false, true}) {
            for (const auto &[before, current, key, command, after] : rowsOfKeys) {
                RecordingManager manager;
                Points points(rows(before), &manager);
                if (refreshing)
                    manager.onTableCommand = [&points, count = after] {
                        points.field.setNum(count);
                        points.refresh();
                    };
                points.m_table->setCurrentCell(current, 0);
                QTest::keyClick(points.m_table, key);
                QCOMPARE(manager.takeLog().join(';'), command);
                QCOMPARE(points.m_table->rowCount(), after);
                QVERIFY(points.accessBox()->minimum() == (after > 0) && points.accessBox()->maximum() == after);
                if (after > before)
                    QCOMPARE(points.m_table->currentRow(), current);
            }
        }
    }

    void selection()
    {
        RecordingManager manager;
        Points points(rows(8), &manager);
        HbMFieldTable *const table = points.m_table;
        const auto press = [table](Qt::Key key) { // QTest would release Shift behind it
            QKeyEvent event(QEvent::KeyPress, key, Qt::ShiftModifier);
            QCoreApplication::sendEvent(table, &event);
        };
        const auto select = [&](int first, int count) {
            table->setCurrentCell(first, 0);
            press(Qt::Key_Shift);
            for (int i = 1; i < count; ++i)
                press(Qt::Key_Down);
        };
        select(2, 4);
        press(Qt::Key_Delete);
        QCOMPARE(manager.takeLog(), QStringList("deleteRows 2 4"));
        QVERIFY(table->rowCount() == 4 && points.accessBox()->maximum() == 4);
        QTest::keyRelease(table, Qt::Key_Shift);
        select(0, 2);
        QTest::keyRelease(table, Qt::Key_Shift);
        press(Qt::Key_Shift); // nothing is selected any more
        press(Qt::Key_Delete);
        QCOMPARE(manager.takeLog(), QStringList());
        QTest::keyRelease(table, Qt::Key_Shift);
        select(3, 1);
        points.accessBox()->setFocus(); // which hears the release in the table's place
        QTest::keyRelease(points.accessBox(), Qt::Key_Shift);
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Delete);
        QCOMPARE(manager.takeLog(), QStringList("deleteRows 3 1"));
    }

    void accessBox()
    {
        Points points(rows(100), nobody);
        auto *const box = points.accessBox();
        const auto isVisible
            = [&](int row) { return points.m_table->viewport()->rect().contains(points.cell(row, 0)); };
        auto *const edit = box->findChild<QLineEdit *>();
        QTest::mouseClick(edit, Qt::LeftButton);
        QVERIFY(box->hasFocus());
        edit->selectAll();
        QTest::keyClicks(box, "60");
        QVERIFY(isVisible(60) && points.m_table->currentRow() != 60); // counted from 0, though the box counts from 1
        points.m_table->scrollToTop();
        QTest::keyClick(box, Qt::Key_Return);
        QVERIFY(isVisible(60));
        for (const int outside : {-1, 100, INT_MAX})
            points.m_table->showTableRow(outside);
        points.m_table->setNumRows(-1);
        QVERIFY(isVisible(60) && points.m_table->rowCount() == 100);
        points.m_table->setCurrentCell(20, 0);
        QCOMPARE(box->value(), 20);
        points.field.setNum(300);
        points.refresh();
        points.m_table->showTableRow(250); // at once
        QVERIFY(isVisible(250));
    }

    void rowCommandsCommitFirst()
    {
        RecordingManager manager;
        const auto check = [&](auto &&editor, const char *button, const QString &command) {
            retype(openCell(editor.m_table, 2, 0), "77");
            editor.button(button)->click();
            QCoreApplication::processEvents();
            QStringList log = manager.takeLog();
            log.removeDuplicates();
            QCOMPARE(log, QStringList({"set1Value 2 0 77 null", command}));
            QVERIFY(!qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        };
        for (const auto &[button, command] : {std::pair("m_upButton", "swapRows 2 1"),
                                              {"m_downButton", "swapRows 2 3"},
                                              {"m_addButton", "addRows 3 1"},
                                              {"m_deleteButton", "deleteRows 2 1"}}) {
            check(Points(rows(5), &manager), button, command);
            check(Floats(rows(5, "1"), &manager), button, command);
        }
    }

    void editorsOfOtherDelegates()
    {
        struct Own : HbMFieldTableItemDelegate {
            using HbMFieldTableItemDelegate::HbMFieldTableItemDelegate;
            QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &) const override
            {
                return new QLineEdit(parent); // owned by the view
            }
        };
        RecordingManager manager;
        Points points(rows(2), &manager);
        points.m_table->setItemDelegateForColumn(1, new Own(&manager, &points, points.m_table));
        retype(openCell(points.m_table, 0, 1), "5");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QVERIFY(manager.takeLog().contains("set1Value 0 1 5 null"));
        QVERIFY(points.m_table->hasFocus());
    }

    void fieldThatChangedUnheard()
    {
        const auto change = [](auto &&editor, auto &&field, const QString &values) {
            const auto set = [&](const QString &text) { field.set(('[' + text + ']').toLatin1().constData()); };
            set(values);
            editor.setField(&field);
            const QString before = editor.getCellText(1, 0, 100);
            field.enableNotify(FALSE);
            set(QString(values).replace('1', '2'));
            QString after = editor.getCellText(1, 0, 100);
            QVERIFY(before.contains('1'));
            QCOMPARE(after, QString(before).replace('1', '2'));
        };
        change(HbMFLineWidget(nobody, nullptr, nullptr, {}), SoMFInt32(), "1, 1");
        change(HbMFDefaultFieldWidget(nobody, nullptr, nullptr, {}), SoMFString(),
               "\"1\", \"" + QString(5000, '1') + '"');
        change(HbMFDefaultFieldWidget(nobody, nullptr, nullptr, {}), SoMFNode(),
               "Cone { height 1 }, Cone { height 1 }");
        for (const int count : {2, 500})
            change(HbMFMatrixWidget(nobody, nullptr, nullptr, {}), SoMFMatrix(), rows(count, identity).join(','));
    }

    void validators()
    {
        const std::tuple<int, QString, QString> rowsOfKinds[] = {
            {1, "-32768 32767", "32768 1.5 1,000"},          {2, "0 65535", "-1 65536 1.000"},
            {3, "-2147483648 2147483647", "2147483648"},     {4, "", "0 -1 5"},
            {7, "1.5 -3.4e38 0.123456", "3.5e38 1,5 1,000"}, {8, "1e300", "1,5 x"},
        };
        for (const auto &[kind, accepted, refused] : rowsOfKinds) {
            RecordingManager manager;
            Points points(rows(2), &manager);
            points.m_table->setCellType(HbMFieldTable::MFTableTypeCell(kind));
            QLineEdit *const edit = openCell(points.m_table, 1, 1);
            const auto sent = [&](const QString &texts, bool modified = true) {
                for (const QString &text : texts.split(' ')) {
                    edit->setText(text);
                    edit->setModified(modified && !text.isEmpty());
                    points.m_table->itemDelegate()->setModelData(edit, points.m_table->model(),
                                                                 points.m_table->currentIndex());
                }
                QStringList log = manager.takeLog();
                return log.replaceInStrings("set1Value 1 1 ", "").replaceInStrings(" null", "").join(' ');
            };
            QVERIFY2(sent(refused).isEmpty() && sent(accepted) == accepted, qPrintable(QString::number(kind)));
            QCOMPARE(sent(accepted, false), QString());
        }
    }

    void sliders()
    {
        checkSlider<HbRealSlider, HbMFFloatWidget, SoMFFloat>("99", "set1Value 1 0 7 null");
        checkSlider<HbIntSlider, HbMFInt32Widget, SoMFInt32>("99", "set1Value 1 0 7 null");
        checkSlider<HbUIntSlider, HbMFUInt32Widget, SoMFUInt32>("6", "set1Value 1 0 6 null");

        Floats ranged(rows(2, "1"), HbRangeComponent(2.0f, 4.0f, true), nobody);
        auto *const slider = dynamic_cast<HbRealSlider *>(openCell(ranged.m_table, 0, 0)->parentWidget());
        QVERIFY(slider->areLimitsLocked());
        QCOMPARE(std::pair(slider->getBottom(), slider->getTop()), std::pair(2.0f, 4.0f));
    }

    void cellsFollowTheField()
    {
        Points points(rows(1), nobody);
        points.field.setNum(1000000);
        std::fill_n(points.field.startEditing(), 1000000, SbVec3f(1, 2, 3));
        points.field.finishEditing();
        points.refresh();
        Matrices matrices({identity, identity}, nobody);
        Shown<HbMFStringWidget, SoMFString> texts({'"' + QString(5000, 'w') + '"', "b"}, nobody);
        QTest::qWait(wholeWait);
        PaintCount painted(points.m_table->viewport());
        PaintCount paintedMatrices(matrices.m_table->viewport());
        PaintCount paintedTexts(texts.m_table->viewport());
        points.asked = 0;
        QTest::qWait(wholeWait);
        QVERIFY(painted.region.isEmpty() && paintedMatrices.region.isEmpty() && paintedTexts.region.isEmpty());
        QVERIFY2(points.asked < 1000, "asks for what nobody sees");
        points.field.set1Value(1, 1, 55, 3);
        matrices.field.set1Value(1, SbMatrix());
        texts.field.set1Value(1, "c");
        QTRY_VERIFY(!paintedMatrices.region.isEmpty() && !paintedTexts.region.isEmpty());
        QTRY_COMPARE(painted.region, QRegion(points.cell(1, 1)));
    }

    void elision()
    {
        const QFontMetrics metrics(QApplication::font());
        const QString face = QString::fromUtf8("\xF0\x9F\x98\x80");
        for (const QString &text : {QString("abcdefghijklmnop"), QString("iiiiWWWWiiiiWWWW"), face.repeated(8),
                                    QString("W"), face, QString(), "W" + face})
            for (int width = -5; width < 300; ++width) {
                const QString shown = TextElision::elided(text, width, metrics);
                const bool fits = metrics.horizontalAdvance(text) <= width;
                QString wanted = text;
                for (auto length = text.size(); !fits && length > 0; --length) { // the rule, letter by letter
                    if (length < text.size() && text.at(length - 1).isHighSurrogate())
                        continue;
                    wanted = text.left(length) + "...";
                    if (length < text.size() && metrics.horizontalAdvance(wanted) <= width)
                        break;
                }
                if (!text.isEmpty())
                    QCOMPARE(shown, wanted);
            }
        const auto picture = [](const QString &text) {
            Shown<HbMFStringWidget, SoMFString> editor({'"' + text + '"'}, nobody);
            editor.m_table->setColumnWidth(0, 100);
            editor.m_table->clearFocus();
            return editor.m_table->viewport()->grab(editor.cell(0, 0)).toImage();
        };
        QCOMPARE(picture(QString("\nm\t").repeated(40)), picture(QString(" m ").repeated(40)));
    }

    void chooser()
    {
        RecordingManager manager;
        Colors managed({"0.5 0.5 0.5", "0 0 0"}, &manager);
        Colors alone({"0.5 0.5 0.5", "0 0 0"}, nobody);
        const auto red = [](QColorDialog &dialog) { dialog.setCurrentColor(Qt::red), dialog.accept(); };
        QList<QColor> offered;
        onceOpen([&](QColorDialog &dialog) { offered << dialog.currentColor(); });
        for (const int col : {1, 2, 3, 0})
            managed.click(0, col);
        QCOMPARE(offered, QList<QColor>({QColor(127, 127, 127)})); // cancelled
        for (Colors *const colors : {&managed, &alone}) {
            onceOpen(red);
            colors->click(1, 0);
        }
        QCOMPARE(manager.takeLog(), QStringList("setValue 1"));
        QCOMPARE(alone.field[1], SbColor(1, 0, 0));
    }

    void colorCells()
    {
        Colors colors(rows(5, "0.5 0.5 0.5"), nobody);
        colors.field.set1Value(1, std::numeric_limits<float>::quiet_NaN(), 2, -1);
        const QImage image = colors.m_table->viewport()->grab().toImage();
        QCOMPARE(image.pixelColor(colors.cell(0, 0).center()), QColor(127, 127, 127));
        QCOMPARE(image.pixelColor(colors.cell(1, 0).center()), QColor(0, 255, 0));
        QVERIFY(!openCell(colors.m_table, 4, 0));
    }

    void matrixPopup()
    {
        const QStringList values = {identity, "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 1000.00006"};
        RecordingManager manager;
        Matrices managed(values, &manager);
        Matrices alone(values, nobody);
        const auto edits = [](const Matrices &of) { return of.popup()->findChildren<HbTablePopupLineEdit *>(); };
        const auto texts = [&](const Matrices &of) {
            QStringList all;
            for (const QLineEdit *const edit : edits(of))
                all << edit->text();
            return all.join(' ');
        };
        managed.m_table->setCurrentCell(-1, -1);
        managed.button("m_editButton")->click();
        QVERIFY(managed.popup()->isVisible());
        QCOMPARE(texts(managed).trimmed(), QString());
        managed.click(1, 0); // into a disabled table
        QCOMPARE(texts(managed), "1 5 9 13 5 6 7 8 9 10 11 12 13 14 15 1000");
        QTest::keyClick(edits(managed)[3], Qt::Key_Up);
        QCOMPARE(managed.m_table->currentRow(), 0);
        QVERIFY(texts(managed).startsWith("1 0 0 0 0 1"));
        QCOMPARE(manager.takeLog(), QStringList()); // filling reports nothing
        QTest::keyClicks(edits(managed)[2], "12");
        QCOMPARE(manager.takeLog(), QStringList({"set1Value 0 -1  null", "set1Value 0 -1  null"})); // empty, not null
        QTest::keyClick(edits(managed)[2], Qt::Key_Escape);
        QVERIFY(!managed.popup()->isVisible());

        alone.m_table->setCurrentCell(1, 0);
        alone.button("m_editButton")->click();
        SbMatrix expected = alone.field[1];
        expected[1][1] = 67;
        QTest::keyClick(edits(alone)[5], Qt::Key_7);
        QCOMPARE(alone.field[1], expected);
        alone.button("m_editButton")->click();
        QVERIFY(!alone.popup()->isVisible());
    }
};

QTEST_MAIN(TestMFTable)
#include "tst_mftable.moc"
