// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PanelFixture.h"

#include "NumberForm.h"

#include <QClipboard>
#include <QSpinBox>
#include <QTableWidget>

#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>

#include <cmath>
#include <memory>

/// What is typed is what is meant: expressions, and what becomes of them in fields of all kinds.
class TestTyping : public PanelFixture
{
    Q_OBJECT

    static NumberForm form(const char *type)
    {
        const std::unique_ptr<SoField> field(static_cast<SoField *>(SoType::fromName(type).createInstance()));
        return NumberForm::of(*field);
    }
    static NumberForm::Reading readAngle(const QString &text)
    {
        const Ref<SoPerspectiveCamera> camera;
        return NumberForm::of(camera->heightAngle).read(text);
    }

private Q_SLOTS:
    void expressions_data()
    {
        QTest::addColumn<double>("value");
        const auto row = [](const char *text, double value) { QTest::newRow(text) << value; };
        row("0.5", 0.5);
        row("0,5", 0.5);
        row("1/3", 1 / 3.0);
        row("2*pi", 2 * M_PI);
        row("\u03c0", M_PI);
        row("-2.5e-3", -2.5e-3);
        row("-2,5E+3", -2500);
        row("\u22124", -4);
        row("1,0000", 1);
        row("2^3^2", 512);
        row("-2^2", -4);
        row("2^-1", 0.5);
        row("7-4-1", 2);
        row("1+2*3", 7);
        row(" ( 1 + 2 ) * 3 ", 9);
        row("1e-400", 0);
    }
    void expressions()
    {
        QFETCH(double, value);
        const NumberForm::Reading reading = form("SFDouble").read(QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(reading.error, QString());
        QCOMPARE(reading.value, value);
        QCOMPARE(reading.text.toDouble(), value);
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<bool>("isUnfinished");
        const auto row = [](const char *text, const char *type, const char *reason, bool isUnfinished = false) {
            QTest::addRow("%s: %s", type, text) << QString(type) << QString(reason) << isUnfinished;
        };
        row("", "SFFloat", "missing", true);
        row("1/", "SFFloat", "missing", true);
        row("(1", "SFFloat", "not closed", true);
        row("1e", "SFFloat", "exponent", true);
        row("2p", "SFFloat", "operator", true);
        row("1,000", "SFFloat", "could mean 1.000 or 1000");
        row("1.000,5", "SFFloat", "two decimal marks");
        row("2pi", "SFFloat", "operator");
        row("abc", "SFFloat", "abc");
        row("nan", "SFFloat", "no number that a field should hold");
        row("-Inf", "SFFloat", "no number that a field should hold");
        row("1/0", "SFFloat", "divides by zero");
        row("(-8)^0.5", "SFFloat", "not a real number");
        row("1e400", "SFDouble", "too large");
        row("1e39", "SFFloat", "too large");
        row("30 deg", "SFFloat", "angles only");
        row("1/3", "SFInt32", "no whole number");
        row("40000", "SFShort", "between -32768 and 32767");
        row("-1", "SFUInt32", "between 0 and 4294967295");
        row("0x", "SFInt32", "Digits", true);
        row("0x10", "SFFloat", "not a number");
        row("1 2", "SFVec3d", "3 numbers", true);
        row("1 nan 3", "SFVec3d", "no number that a field should hold");
    }
    void refusals()
    {
        QFETCH(QString, type);
        QFETCH(QString, reason);
        QFETCH(bool, isUnfinished);
        const QString text = QString::fromUtf8(QTest::currentDataTag()).mid(type.size() + 2);
        const NumberForm::Reading reading = form(type.toLatin1()).read(text);
        QVERIFY2(reading.error.contains(reason), qPrintable(reading.error));
        QCOMPARE(reading.isUnfinished, isUnfinished);
    }

    void noTextOverflowsTheStack()
    {
        for (const char *const piece : {"(", "-", "2^", "1+(", "1/"})
            for (const int times : {200, 100000})
                QVERIFY(!form("SFDouble").read(QString(piece).repeated(times)).isReadable());
    }

    void angles()
    {
        QCOMPARE(readAngle("30 deg").value, double(float(M_PI / 6)));
        QCOMPARE(readAngle("30\u00b0").value, double(float(M_PI / 6)));
        QCOMPARE(readAngle("-90/2 deg + pi").value, double(float(M_PI * 3 / 4)));
        QCOMPARE(readAngle("1.5 rad").value, 1.5);
        QVERIFY(!readAngle("30 deg deg").isReadable());
        QVERIFY(form("MFRotation").read("0 0 1 90deg").isReadable());
        QVERIFY(!form("MFRotation").read("90deg 0 1 1").isReadable());
    }

    void everyFloatIsWrittenExactly()
    {
        const NumberForm single = form("SFFloat");
        for (quint32 bits = 1; bits < 0x7f800000; bits += 0x00123457) {
            float number;
            std::memcpy(&number, &bits, sizeof number);
            const QString text = single.written(double(number));
            QCOMPARE(text.toFloat(), number);
            QCOMPARE(single.read(text).value, double(number));
        }
        QCOMPARE(single.written(double(0.1F)), QString("0.1"));
        // rounding to double first would lead to the neighbour
        QCOMPARE(single.read("1.00000005960464477539062500001").value, double(std::nextafter(1.0F, 2.0F)));
    }

    void wholeNumbersInDigitsOfTheirEdit()
    {
        NumberForm hexadecimal = form("SFUInt32");
        hexadecimal.base = 16;
        QCOMPARE(hexadecimal.read("ff").value, 255.0);
        QCOMPARE(hexadecimal.read("0xFF").text, QString("ff"));
        QCOMPARE(hexadecimal.read("10*2").text, QString("20"));
        QVERIFY(!hexadecimal.read("1.5").isReadable());
        QCOMPARE(form("SFInt32").read("-0x10").text, QString("-16"));
        QCOMPARE(form("SFInt32").read("6/2").text, QString("3"));
        QCOMPARE(form("SFInt32").read("1.1*10").text, QString("11"));
    }

    void commitsTheExactNumber()
    {
        typeHeight("1/3");
        QCOMPARE((*m_cone)->height.getValue(), float(1 / 3.0));
        QCOMPARE(m_stack->count(), 1);
        typeHeight("0,1", Qt::Key_Tab);
        QCOMPARE((*m_cone)->height.getValue(), 0.1F);
        retype(height(), "2^0.5");
        m_panel->setNode(nullptr); // what is being typed is finished
        QCOMPARE((*m_cone)->height.getValue(), float(std::sqrt(2)));
        QCOMPARE(m_stack->count(), 3);
    }

    void oneUnreadableNumberHoldsBackTheValue()
    {
        show("SFVec3f value 0 0 0");
        retype(edits().at(0), "x");
        enter(edits().at(1), "5");
        QVERIFY(edits().at(1)->isModified() && m_stack->count() == 0);
        enter(edits().at(0), "-1/4");
        QVERIFY(field<SoSFVec3f>()->getValue() == SbVec3f(-0.25F, 5, 0) && m_stack->count() == 1);
    }

    void popups()
    {
        Complaints::expect("This plugin does not support");
        show("MFMatrix value [ 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1 ]");
        m_panel->findChild<QPushButton *>("m_editButton")->click();
        QLineEdit *const first = m_panel->findChild<QFrame *>("m_popupFrame")->findChild<QLineEdit *>();
        enter(first, "1/3");
        enter(first, "nan");
        QCOMPARE((*field<SoMFMatrix>())[0][0][0], float(1 / 3.0));
        QCOMPARE(m_stack->count(), 1);
    }

    void spinBoxes()
    {
        show("SFVec2s value 0 0");
        auto *const spin = m_panel->editorOf("value")->findChildren<QSpinBox *>().at(1);
        const auto typeIn = [&](const QString &text, Qt::Key end) {
            retype(spin, text);
            QTest::keyClick(spin, end);
        };
        typeIn("2*3", Qt::Key_Return);
        typeIn("7/2", Qt::Key_Return);
        QCOMPARE(spin->text(), QString("7/2"));
        typeIn("1,000", Qt::Key_Tab);
        QVERIFY(field<SoSFVec2s>()->getValue() == SbVec2s(0, 6) && m_stack->count() == 1);
        QTest::keyClick(spin, Qt::Key_Up, Qt::ShiftModifier);
        QTest::keyClick(spin, Qt::Key_Down);
        QVERIFY(field<SoSFVec2s>()->getValue() == SbVec2s(0, 15) && m_stack->count() == 2);
    }

    void doublesKeepEveryBit()
    {
        show("SFVec3d value");
        const SbVec3d before(std::nextafter(0.1, 1), 2, std::nextafter(0.3, 1));
        field<SoSFVec3d>()->setValue(before);
        QCoreApplication::processEvents();
        QLineEdit *const line = edits().first();
        enter(line, QString(line->text()).replace(" 2 ", " 2*pi "));
        QVERIFY(field<SoSFVec3d>()->getValue() == SbVec3d(before[0], 2 * M_PI, before[2]));
        show("SFRotation value 0 0 1 1.5707963");
        enter(edits().at(2), "0"); // no axis
        QCOMPARE(textsOfEdits(), QString("0 0 1 1.5707963"));
        QVERIFY(m_messages.takeLast().contains("0 0 0") && m_stack->count() == 1);
        for (const char *const angle : {"30 deg", "0", "2"}) {
            enter(edits().at(3), angle);
            enter(edits().at(2), "5");
            const QString shown = QString(angle).replace("30 deg", "0.5235988");
            QCOMPARE(textsOfEdits(), "0 0 5 " + shown);
            QVERIFY(field<SoSFRotation>()->getValue() == SbRotation(SbVec3f(0, 0, 5), shown.toFloat()));
        }
        show("MFDouble value [ 1 ]");
        enter(openCell(m_panel->findChild<QTableWidget *>(), 0, 0), "1/3");
        QCoreApplication::processEvents(); // Qt commits it then
        QCOMPARE((*field<SoMFDouble>())[0], 1 / 3.0);
    }

    void hexadecimalDigits()
    {
        show("SFUInt32 value 255");
        QLineEdit *const edit = edits().first();
        enter(edit, "1F");
        QCOMPARE(field<SoSFUInt32>()->getValue(), 0x1fU);
        QTest::keyClick(edit, Qt::Key_Up);
        QCOMPARE(field<SoSFUInt32>()->getValue(), 0x20U);
        enter(edit, "100000000");
        QVERIFY(m_messages.takeLast().contains("ffffffff, in hexadecimal"));
        show("MFUInt32 value 255");
        enter(openCell(m_panel->findChild<QTableWidget *>(), 0, 0), "ff+1");
        QCOMPARE((*field<SoMFUInt32>())[0], 0x100U);
    }

private:
    QString textsOfEdits()
    {
        QStringList texts;
        const auto all = edits();
        for (const QLineEdit *const edit : all)
            texts += edit->text();
        return texts.join(' ');
    }
};

QTEST_MAIN(TestTyping)

#include "tst_typing.moc"
