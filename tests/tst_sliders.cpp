// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include "sliders/IntegerText.h"

#include <HbIntSlider.h>
#include <HbRangeSettings.h>
#include <HbRealSlider.h>
#include <HbUIntSlider.h>

#include <QLineEdit>
#include <QSlider>

#include <cmath>
#include <limits>

namespace
{
constexpr float inf = std::numeric_limits<float>::infinity();
constexpr int intMin = std::numeric_limits<int>::min();
constexpr int intMax = std::numeric_limits<int>::max();

/// A slider with what a test wants to reach of it.
template <class Slider> struct Bench {
    template <class... Type>
    explicit Bench(HbSlider::SliderParentType parentType, HbFieldEditorCommandManager *manager, Type... type)
        : control(type..., parentType, &editor, manager, nullptr, 3, 1),
          edit(control.template findChild<QLineEdit *>()), slider(control.template findChild<QSlider *>())
    {
        control.show();
    }

    void drag(const QList<int> &positions)
    {
        slider->setSliderDown(true);
        for (const int position : positions)
            slider->setSliderPosition(position);
        slider->setSliderDown(false);
    }

    RecordingEditor editor;
    Slider control;
    QLineEdit *edit;
    QSlider *slider;
};
} // namespace

class TestSliders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Complaints::listen(); }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void dragOfASingleField()
    {
        const struct {
            bool isManaged;
            bool isLive;
            QString log;
        } rows[] = {
            {false, true, "apply apply apply"},
            {false, false, "apply"},
            {true, true, "apply apply sfield 10"},
            {true, false, "sfield 10"},
        };
        for (const auto &row : rows) {
            RecordingManager manager;
            Bench<HbIntSlider> bench(HbSlider::SingleField, row.isManaged ? &manager : nullptr, HbSlider::Int32);
            bench.control.setValidLimits(0, 100, false);
            bench.control.setValue(QStringLiteral("10"));
            bench.control.setChecked(row.isLive);
            bench.drag({20, 30});
            QCOMPARE((bench.editor.takeLog() + manager.takeLog()).join(QLatin1Char(' ')), row.log);
            QCOMPARE(bench.edit->text(), QStringLiteral("30"));
            QCOMPARE(bench.control.getIntValue(), 30);
        }
    }

    void dragOfACell()
    {
        RecordingManager manager;
        Bench<HbUIntSlider> bench(HbSlider::TableCell, &manager, HbSlider::UInt32);
        bench.control.setValidLimits(0, 255, false);
        bench.control.setValue(QStringLiteral("0x1f"));
        bench.drag({bench.slider->minimum() + 0x20});
        QCOMPARE(bench.editor.takeLog(),
                 QStringList({"setRefresh 0", "set1Value 3 1 0x20", "setRefresh 1", "setRefresh 0", "setRefresh 1"}));
        QCOMPARE(manager.takeLog(), QStringList({"set1Value 3 1 0x20 0x1f"}));
    }

    void releaseWithoutPressPassesNoPreviousValue()
    {
        RecordingManager manager;
        Bench<HbRealSlider> bench(HbSlider::SingleField, &manager);
        bench.control.changeValueAfterFinish(0);
        bench.drag({});
        bench.control.changeValueAfterFinish(0);
        QCOMPARE(manager.takeLog(), QStringList({"sfield null", "sfield 0", "sfield null"}));
    }

    void returnReportsTwiceUntilRefreshed()
    {
        RecordingManager manager;
        Bench<HbIntSlider> bench(HbSlider::SingleField, &manager, HbSlider::Int32);
        bench.control.setValue(QStringLiteral("1"));
        QTest::keyClick(bench.edit, Qt::Key_Return); // nothing typed yet
        QCOMPARE(manager.takeLog(), QStringList());
        retype(bench.edit, QStringLiteral("42"));
        QTest::keyClick(bench.edit, Qt::Key_Return);
        QCOMPARE(manager.takeLog(), QStringList({"sfield null", "sfield null"}));
        manager.onCommit = [&] { bench.control.setValue(QStringLiteral("42")); };
        QTest::keyClick(bench.edit, Qt::Key_Return);
        QCOMPARE(manager.takeLog(), QStringList({"sfield null"}));
        QCOMPARE(bench.slider->value(), 42);
    }

    void hostMayDeleteTheSliderInAnswer()
    {
        RecordingManager manager;
        auto *const slider = new HbIntSlider(HbSlider::Int32, HbSlider::SingleField, nullptr, &manager, nullptr, 0, 1);
        slider->setValidLimits(0, 100, false);
        manager.onCommit = [slider] { delete slider; };
        slider->changeValueAfterFinish(7);
        QCOMPARE(manager.takeLog(), QStringList({"sfield null"}));
    }

    void partnersMayDieFirst()
    {
        auto manager = std::make_unique<RecordingManager>();
        auto editor = std::make_unique<RecordingEditor>();
        HbIntSlider slider(HbSlider::Int32, HbSlider::TableCell, editor.get(), manager.get(), nullptr, 0, 0);
        manager.reset();
        slider.changeValueFromSlider(5);
        slider.changeValueAfterFinish(5);
        QCOMPARE(editor->takeLog(), QStringList({"setRefresh 0", "set1Value 0 0 5", "setRefresh 1"}));
        editor.reset();
        slider.changeValueAfterFinish(5);
        slider.findChild<QSlider *>()->setValue(9);
    }

    void firstValueDecidesTheBase()
    {
        const struct {
            QString first;
            QString shown;
            int value;
            bool isValidated;
        } rows[] = {
            {"0x1F", "1F", 31, false},
            {"07", "7", 7, false},
            {"017", "017", 17, true}, // a longer one with a zero is decimal
            {"0x", "x", 0, false},
            {"abc", "abc", 0, true},
            {"99999999999", "99999999999", 0, true},
        };
        for (const auto &row : rows) {
            Bench<HbIntSlider> bench(HbSlider::SingleField, nullptr, HbSlider::Int32);
            bench.control.setValue(row.first);
            QCOMPARE(bench.edit->text(), row.shown);
            QCOMPARE(bench.control.getText(), row.first);
            QCOMPARE(bench.control.getIntValue(), row.value);
            QCOMPARE(bench.edit->validator() != nullptr, row.isValidated);
        }
    }

    void hexadecimalEditShowsDigitsAndTellsTheDecimal()
    {
        Bench<HbIntSlider> bench(HbSlider::SingleField, nullptr, HbSlider::Int16);
        bench.control.setValidLimits(-100, 100, false);
        bench.control.setValue(QStringLiteral("0x10"));
        bench.drag({-31});
        QCOMPARE(bench.edit->text(), QStringLiteral("-1f"));
        QVERIFY(bench.edit->toolTip().contains(QLatin1String("-31")));
        retype(bench.edit, QStringLiteral("fffff"));
        QTest::keyClick(bench.edit, Qt::Key_Return);
        QCOMPARE(bench.control.getIntValue(), 32767); // no validator, but its bounds
        QCOMPARE(IntegerText::digits(std::numeric_limits<qint64>::min(), 16), QStringLiteral("-8000000000000000"));
    }

    void signedLimits()
    {
        Bench<HbIntSlider> bench(HbSlider::SingleField, nullptr, HbSlider::Int16);
        bench.control.setValidLimits(-100000, 100000, false);
        QCOMPARE(bench.slider->minimum(), -32768);
        QCOMPARE(bench.slider->maximum(), 32767);
        bench.control.setValidLimits(0, 10, false);
        bench.control.setValue(QStringLiteral("12")); // grows
        QCOMPARE(bench.slider->maximum(), 12);
        bench.control.setValidLimits(0, 10, true);
        bench.control.setTop(50);
        bench.control.setValue(QStringLiteral("50"));
        QCOMPARE(bench.control.getIntValue(), 10);
        QCOMPARE(bench.slider->maximum(), 10);
    }

    void unsignedLimitsLockOnlyWhatIsAllowed()
    {
        Bench<HbUIntSlider> bench(HbSlider::SingleField, nullptr, HbSlider::UInt32);
        bench.control.setValidLimits(0, 100, false);
        QCOMPARE(bench.slider->minimum(), intMin);
        QCOMPARE(bench.slider->maximum(), intMin + 100);
        bench.control.setValidLimits(0, 50, true);
        QCOMPARE(bench.slider->maximum(), intMin + 100);
        bench.control.setValue(QStringLiteral("70"));
        QCOMPARE(bench.control.getUIntValue(), 50u);

        Bench<HbUIntSlider> lockedFirst(HbSlider::SingleField, nullptr, HbSlider::UInt32);
        lockedFirst.control.setValidLimits(0, 50, true);
        lockedFirst.control.setValue(QStringLiteral("20"));
        QCOMPARE(lockedFirst.control.getUIntValue(), 0u);
    }

    void extremesOfIntegers()
    {
        Bench<HbIntSlider> whole(HbSlider::SingleField, nullptr, HbSlider::Int32);
        whole.control.setValidLimits(intMin, intMax, false);
        whole.control.setValidLimits(intMin, 0, true); // 2^31 wide, which Qt 5 cannot paint
        whole.control.setValue(QString::number(intMin));
        whole.control.grab();
        whole.control.setValidLimits(10, -10, true);
        whole.control.setValue(QStringLiteral("0"));
        QCOMPARE(whole.control.getIntValue(), 10);
    }

    void positionsOfReals()
    {
        Bench<HbRealSlider> bench(HbSlider::SingleField, nullptr);
        bench.control.setValidLimits(0, 10, false);
        QCOMPARE(bench.control.sliderToInt(2.5f), 25);
        QCOMPARE(bench.control.sliderToFloat(25), 2.5f);
        bench.control.setValidLimits(5, 10, false);
        QCOMPARE(bench.control.sliderToInt(7.5f), 55); // no inverse: deliberate
        QCOMPARE(bench.control.sliderToFloat(55), 7.75f);
        bench.control.setValidLimits(-3, 0, false);
        QCOMPARE(bench.control.sliderToInt(-3), -2); // toward zero
    }

    void oddRealRanges()
    {
        using Limits = std::numeric_limits<float>;
        const std::pair<float, float> rows[] = {
            {1, 1}, {5, -5}, {-Limits::max(), Limits::max()}, {-inf, inf}, {NAN, NAN}, {0, Limits::denorm_min()},
        };
        for (const auto &[min, max] : rows) {
            for (const bool lock : {false, true}) {
                Bench<HbRealSlider> bench(HbSlider::SingleField, nullptr);
                bench.control.setValidLimits(min, max, lock);
                bench.control.setRealValue(min);
                bench.control.grab();
                bench.drag({intMin, 0, 50, intMax});
                retype(bench.edit, QStringLiteral("1e38"));
                QTest::keyClick(bench.edit, Qt::Key_Return);
                for (const int position : {intMin, -1, 0, 1, 100, intMax})
                    QVERIFY(std::isnan(min) || !std::isnan(bench.control.sliderToFloat(position)));
            }
        }
    }

    void realTextAndLimits()
    {
        Bench<HbRealSlider> bench(HbSlider::SingleField, nullptr);
        bench.control.setValidLimits(0, 10, false);
        bench.control.setRealValue(0.123456789f);
        QCOMPARE(bench.edit->text(), QStringLiteral("0.123457"));
        QCOMPARE(bench.control.getRealValue(), 0.123457f);
        QString tooLarge = QStringLiteral("1e39");
        bench.control.setText(tooLarge);
        bench.control.setValueFromEdit();
        QCOMPARE(bench.control.getRealValue(), 0.0f);
    }

    void lockedTypingIsClampedOnCommit()
    {
        const struct {
            float min;
            float max;
            QString typed;
            QString shown;
        } rows[] = {
            {0.1f, 2.0f / 3.0f, "7", "0.666667"}, // a bound that 6 digits do not tell
            {0, 1, "-5", "0"},
            {-10, 10, "-50", "-10"},
            {10, 50, "3", "10"}, // too few digits
            {0, 1, "1e300", "1"},
            {10, 50, "-", "-"},
            {0, 1, "xy", ""},
        };
        RecordingManager manager;
        for (const auto &row : rows) {
            const auto check = [&](auto &bench) {
                for (const bool leaves : {false, true}) {
                    retype(bench.edit, row.typed);
                    QFocusEvent leaving(QEvent::FocusOut);
                    if (leaves)
                        QCoreApplication::sendEvent(bench.edit, &leaving);
                    else
                        QTest::keyClick(bench.edit, Qt::Key_Return);
                    QCOMPARE(bench.edit->text(), row.shown);
                    QCOMPARE(manager.takeLog().isEmpty(), row.shown == QLatin1String("-") || row.shown.isEmpty());
                }
            };
            Bench<HbRealSlider> real(HbSlider::SingleField, &manager);
            real.control.setValidLimits(row.min, row.max, true);
            real.control.setRealValue(row.min);
            check(real);
            QVERIFY(row.typed != QLatin1String("7") || real.control.getRealValue() == row.max);
            if (row.min != std::trunc(row.min) || row.typed.contains(QLatin1Char('e')))
                continue;
            Bench<HbIntSlider> integer(HbSlider::SingleField, &manager, HbSlider::Int32);
            integer.control.setValidLimits(static_cast<int>(row.min), static_cast<int>(row.max), true);
            integer.control.setValue(QString::number(row.min));
            check(integer);
        }
    }

    void ranges()
    {
        const HbRangeSettings settings;
        QCOMPARE(settings.getFieldRange("DefaultNode", "intField"), HbRangeComponent(0, 100, false));
        QCOMPARE(settings.getFieldRange("Material", "shininess"), HbRangeComponent());
        QVERIFY(settings.isBounded("Complexityv", "alue"));
    }
};

QTEST_MAIN(TestSliders)
#include "tst_sliders.moc"
