// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include "sliders/IntegerText.h"

#include <HbIntSlider.h>
#include <HbRealSlider.h>
#include <HbUIntSlider.h>

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
        const std::tuple<bool, bool, QString> rows[] = {
            {false, true, "apply apply apply"},
            {false, false, "apply"},
            {true, true, "apply apply sfield 10"},
            {true, false, "sfield 10"},
        };
        for (const auto &[isManaged, isLive, log] : rows) {
            RecordingManager manager;
            Bench<HbIntSlider> bench(HbSlider::SingleField, isManaged ? &manager : nullptr, HbSlider::Int32);
            bench.control.setValidLimits(0, 100, false);
            bench.control.setValue("10");
            bench.control.setChecked(isLive);
            bench.drag({20, 30});
            QCOMPARE((bench.editor.takeLog() + manager.takeLog()).join(' '), log);
            QCOMPARE(bench.edit->text(), "30");
            QCOMPARE(bench.control.getIntValue(), 30);
            bench.control.changeValueAfterFinish(30); // without a press
            QCOMPARE(manager.takeLog(), isManaged ? QStringList("sfield null") : QStringList());
        }
    }

    void dragOfACell()
    {
        RecordingManager manager;
        Bench<HbUIntSlider> bench(HbSlider::TableCell, &manager, HbSlider::UInt32);
        bench.control.setValidLimits(0, 255, false);
        bench.control.setValue("0x1f");
        bench.drag({bench.slider->minimum() + 0x20});
        QCOMPARE(bench.editor.takeLog(),
                 QStringList({"setRefresh 0", "set1Value 3 1 0x20", "setRefresh 1", "setRefresh 0", "setRefresh 1"}));
        QCOMPARE(manager.takeLog(), QStringList({"set1Value 3 1 0x20 0x1f"}));
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

    void tabbingThroughChangesNothing()
    {
        RecordingManager manager;
        Bench<HbRealSlider> bench(HbSlider::SingleField, &manager);
        bench.control.setValidLimits(0, 1, true);
        bench.control.setRealValue(5); // shown as it is, beyond what may be typed
        QApplication::setActiveWindow(&bench.control);
        bench.edit->setFocus();
        bench.edit->clearFocus();
        QTest::keyClick(bench.edit, Qt::Key_Return);
        QCOMPARE(bench.edit->text(), "5");
        QCOMPARE(manager.takeLog(), QStringList());
    }

    void firstValueDecidesTheBase()
    {
        const std::tuple<QString, QString, int, bool> rows[] = {
            {"0x1F", "1F", 31, false},
            {"07", "7", 7, false},
            {"017", "017", 17, true}, // a longer one with a zero is decimal
            {"0x", "x", 0, false},
            {"abc", "abc", 0, true},
            {"99999999999", "99999999999", 0, true},
        };
        for (const auto &[first, shown, value, isValidated] : rows) {
            Bench<HbIntSlider> bench(HbSlider::SingleField, nullptr, HbSlider::Int32);
            bench.control.setValue(first);
            QCOMPARE(bench.edit->text(), shown);
            QCOMPARE(bench.control.getText(), first);
            QCOMPARE(bench.control.getIntValue(), value);
            QCOMPARE(bench.edit->validator() != nullptr, isValidated);
        }
    }

    void hexadecimalEditShowsDigitsAndTellsTheDecimal()
    {
        Bench<HbIntSlider> bench(HbSlider::SingleField, nullptr, HbSlider::Int16);
        bench.control.setValidLimits(-100, 100, false);
        bench.control.setValue("0x10");
        bench.drag({-31});
        QCOMPARE(bench.edit->text(), "-1f");
        QVERIFY(bench.edit->toolTip().contains("-31"));
        enter(bench.edit, "fffff");
        QCOMPARE(bench.control.getIntValue(), 32767); // no validator, but its bounds
        QCOMPARE(bench.slider->value(), 32767);
        QCOMPARE(IntegerText::digits(std::numeric_limits<qint64>::min(), 16), "-8000000000000000");
    }

    void unsignedLimitsLockOnlyWhatIsAllowed()
    {
        Bench<HbUIntSlider> bench(HbSlider::SingleField, nullptr, HbSlider::UInt32);
        bench.control.setValidLimits(0, 100, false);
        QCOMPARE(bench.slider->minimum(), intMin);
        QCOMPARE(bench.slider->maximum(), intMin + 100);
        bench.control.setValidLimits(0, 50, true);
        QCOMPARE(bench.slider->maximum(), intMin + 100);
        bench.control.setValue("70");
        QCOMPARE(bench.control.getUIntValue(), 50u);

        Bench<HbUIntSlider> lockedFirst(HbSlider::SingleField, nullptr, HbSlider::UInt32);
        lockedFirst.control.setValidLimits(0, 50, true);
        lockedFirst.control.setValue("20");
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
        whole.control.setTop(50); // which is locked
        whole.control.setValue("0");
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
        bench.control.setRealValue(-0.123456789f);
        QCOMPARE(bench.edit->text(), "-0.123457");
        QCOMPARE(bench.control.getRealValue(), -0.123457f);
        QString tooLarge = "1e39";
        bench.control.setText(tooLarge);
        bench.control.setValueFromEdit();
        QCOMPARE(bench.control.getRealValue(), 0.0f);
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
                enter(bench.edit, "1e38");
                for (const int position : {intMin, -1, 0, 1, 100, intMax})
                    QVERIFY(std::isnan(min) || !std::isnan(bench.control.sliderToFloat(position)));
            }
        }
    }

    void lockedTypingIsClampedOnCommit()
    {
        const std::tuple<float, float, QString, QString> rows[] = {
            {0.1f, 2.0f / 3.0f, "7", "0.666667"}, // a bound that 6 digits do not tell
            {0, 1, "-5", "0"},
            {-10, 10, "-50", "-10"},
            {10, 50, "3", "10"}, // too few digits
            {0, 1, "1e300", "1"},
            {10, 50, "-", "-"},
            {0, 1, "xy", ""},
        };
        RecordingManager manager;
        for (const auto &[min, max, text, shown] : rows) {
            const auto check = [&manager, typed = text, wanted = shown](auto &bench) {
                for (const bool leaves : {false, true}) {
                    retype(bench.edit, typed);
                    QFocusEvent leaving(QEvent::FocusOut);
                    if (leaves)
                        QCoreApplication::sendEvent(bench.edit, &leaving);
                    else
                        QTest::keyClick(bench.edit, Qt::Key_Return);
                    QCOMPARE(bench.edit->text(), wanted);
                    QCOMPARE(manager.takeLog().isEmpty(), wanted == "-" || wanted.isEmpty());
                }
            };
            Bench<HbRealSlider> real(HbSlider::SingleField, &manager);
            real.control.setValidLimits(min, max, true);
            real.control.setRealValue(min);
            check(real);
            QVERIFY(text != "7" || real.control.getRealValue() == max);
            if (min != std::trunc(min) || text.contains('e'))
                continue;
            Bench<HbIntSlider> integer(HbSlider::SingleField, &manager, HbSlider::Int32);
            integer.control.setValidLimits(static_cast<int>(min), static_cast<int>(max), true);
            integer.control.setValue(QString::number(min));
            check(integer);
        }
    }
};

QTEST_MAIN(TestSliders)
#include "tst_sliders.moc"
