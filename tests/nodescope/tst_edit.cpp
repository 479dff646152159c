// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PanelFixture.h"

#include "tools/nodescope/EditManager.h"

#include <QAction>
#include <QStyleOptionSlider>

#include <Inventor/engines/SoCalculator.h>

#include <cstring>
#include <limits>

namespace
{
constexpr float oddHeight = 2.3456789f;

quint32 bitsOf(float number)
{
    quint32 bits;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

QPoint handleOf(QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = Qt::Horizontal;
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = option.sliderValue = slider->value();
    option.subControls = QStyle::SC_All;
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider).center();
}

/// Unlike QTest::mouseMove(), says in Qt 5 too that the button is held.
void dragTo(QWidget *target, const QPoint &at)
{
    QMouseEvent event(QEvent::MouseMove, at, target->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

} // namespace

class EditTest : public PanelFixture
{
    Q_OBJECT

    /// A cone whose height is shown rounded.
    SoCone *coneOfOddHeight()
    {
        (*m_cone)->height = oddHeight;
        QApplication::processEvents();
        return *m_cone;
    }
    bool hasOddHeight() const { return (*m_cone)->height.getValue() == oddHeight; }

private Q_SLOTS:
    void commit()
    {
        SoCone *const cone = *m_cone;
        const QByteArray before = saved(cone);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) {
            m_stack->clear();
            typeHeight("2.000", key); // no change leaves nothing
            QVERIFY(m_stack->count() == 0 && cone->height.isDefault());
            typeHeight("3.50", key);
            QCOMPARE(height()->text(), QString("3.5"));
            QCOMPARE(cone->height.getValue(), 3.5f);
            QCOMPARE(m_stack->count(), 1);
            QCOMPARE(m_stack->undoText(), QString::fromUtf8("Cone.height: 2 \u2192 3.5"));
            QApplication::processEvents(); // the button comes alive
            for (const char *const button : {"m_ignoreButton", "m_defaultButton"})
                QTest::mouseClick(m_panel->findChildren<QPushButton *>(button).at(1), Qt::LeftButton);
            QVERIFY(cone->height.isIgnored() && cone->height.isDefault());
            QCOMPARE(m_stack->count(), 3);
            m_stack->setIndex(0);
            QCOMPARE(saved(cone), before);
            QApplication::processEvents();
            QCOMPARE(height()->text(), QString("2"));
        }
    }

    void undoIsExact()
    {
        SoCone *const cone = *m_cone;
        using Limits = std::numeric_limits<float>;
        for (const float value : {2.3456789f, Limits::quiet_NaN(), Limits::infinity(), -0.0f, Limits::denorm_min()}) {
            m_stack->clear();
            cone->height = value;
            QApplication::processEvents();
            typeHeight("1");
            QCOMPARE(m_stack->count(), 1);
            m_stack->undo();
            QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(value));
            m_stack->redo();
            QCOMPARE(cone->height.getValue(), 1.0f);
        }
    }

    void drag()
    {
        SoCone *const cone = coneOfOddHeight();
        const QPoint start = handleOf(slider());
        QTest::mousePress(slider(), Qt::LeftButton, {}, start);
        for (int i = 1; i <= 5; ++i)
            dragTo(slider(), start + QPoint(10 * i, 0));
        QVERIFY(cone->height.getValue() > 2.5f); // at once
        QCOMPARE(m_stack->count(), 0);
        QApplication::processEvents();
        QTest::mouseRelease(slider(), Qt::LeftButton, {}, start + QPoint(50, 0));
        QCOMPARE(m_stack->count(), 1);
        m_stack->undo();
        QVERIFY(hasOddHeight());
        QApplication::processEvents();

        const QPoint aside(slider()->width() - 4, slider()->height() / 2);
        QTest::mousePress(slider(), Qt::MiddleButton, {}, aside); // the handle jumps here
        dragTo(slider(), aside - QPoint(20, 0));
        QTest::mouseRelease(slider(), Qt::MiddleButton, {}, aside - QPoint(20, 0));
        QCOMPARE(m_stack->count(), 1);
        m_stack->undo();
        QVERIFY(hasOddHeight());
    }

    void undoneInDrag_data()
    {
        QTest::addColumn<int>("bits");
        for (int bits = 0; bits < 8; ++bits)
            QTest::addRow("%d", bits) << bits;
    }

    void undoneInDrag()
    {
        QFETCH(int, bits);
        const bool sameField = bits & 1;
        const bool movesOn = bits & 2;
        const bool live = bits & 4;
        coneOfOddHeight();
        control<QCheckBox>("Cone.height")->setChecked(live);
        QLineEdit *const edited = sameField ? height() : control<QLineEdit>("Cone.bottomRadius");
        enter(edited, "3");
        QPoint at = handleOf(slider());
        QTest::mousePress(slider(), Qt::LeftButton, {}, at);
        dragTo(slider(), at += QPoint(20, 0));
        m_stack->undo();
        if (movesOn)
            dragTo(slider(), at += QPoint(20, 0));
        QTest::mouseRelease(slider(), Qt::LeftButton, {}, at);

        const bool isStep = !sameField || movesOn;
        QCOMPARE(!hasOddHeight(), isStep);
        QCOMPARE(m_stack->canUndo(), isStep);
        QCOMPARE(m_stack->canRedo(), !isStep);
        m_stack->undo();
        QVERIFY(hasOddHeight());
    }

    void commandsEndADrag()
    {
        const QByteArray before = saved(*m_cone);
        for (const char *const name : {"m_ignoreButton", "m_defaultButton"}) {
            const QPoint at = handleOf(slider());
            QTest::mousePress(slider(), Qt::LeftButton, {}, at);
            dragTo(slider(), at + QPoint(30, 0));
            QApplication::processEvents(); // the default can be had once it differs
            m_panel->editorOf("height")->findChild<QPushButton *>(name)->click();
            dragTo(slider(), at + QPoint(60, 0));
            QTest::mouseRelease(slider(), Qt::LeftButton, {}, at + QPoint(60, 0));
            QCOMPARE(m_stack->count(), 2);
            m_stack->setIndex(0);
            QCOMPARE(saved(*m_cone), before);
        }
    }

    void ignoreUndoneInDragLeavesNoTrace()
    {
        const QByteArray before = saved(*m_cone);
        for (const auto &[moved, movesOn] : {std::pair(0, false), {10, false}, {10, true}}) {
            m_panel->editorOf("height")->findChild<QPushButton *>("m_ignoreButton")->click();
            const QPoint at = handleOf(slider());
            QTest::mousePress(slider(), Qt::LeftButton, {}, at);
            dragTo(slider(), at + QPoint(moved, 0));
            m_stack->undo();
            QCOMPARE(saved(*m_cone), before);
            if (movesOn)
                dragTo(slider(), at + QPoint(2 * moved, 0));
            QTest::mouseRelease(slider(), Qt::LeftButton, {}, at + QPoint((movesOn ? 2 : 1) * moved, 0));
            QCOMPARE(m_stack->canUndo(), movesOn);
            m_stack->setIndex(0);
            QCOMPARE(saved(*m_cone), before);
            QApplication::processEvents();
        }
    }

    void escapeEndsADragWithTheBoxOff()
    {
        coneOfOddHeight();
        control<QCheckBox>("Cone.height")->setChecked(false);
        const QPoint at = handleOf(slider());
        QTest::mousePress(slider(), Qt::LeftButton, {}, at);
        dragTo(slider(), at + QPoint(30, 0));
        QVERIFY(height()->text() != "2.34568");
        QTest::keyClick(m_panel.get(), Qt::Key_Escape); // wherever the keyboard is
        QCOMPARE(height()->text(), QString("2.34568"));
        dragTo(slider(), at + QPoint(40, 0));
        QTest::mouseRelease(slider(), Qt::LeftButton, {}, at + QPoint(40, 0));
        QVERIFY(hasOddHeight() && m_stack->count() == 0);
    }

    void anotherNodeInDrag()
    {
        SoCone *const cone = *m_cone;
        const Ref<SoCone> second;
        const QPointer<QSlider> held = slider();
        const QPoint at = handleOf(held);
        QTest::mousePress(held, Qt::LeftButton, {}, at);
        dragTo(held, at + QPoint(20, 0));
        m_panel->setNode(second);
        m_cone.reset(); // only the undo step keeps it
        dragTo(held, at + QPoint(40, 0));
        m_panel->setNode(nullptr);
        QTest::mouseRelease(held, Qt::LeftButton, {}, at + QPoint(40, 0));
        QCOMPARE(m_stack->count(), 1);
        QVERIFY(cone->height.getValue() > 2);
        QCOMPARE(cone->getRefCount(), 1);
        QVERIFY(second->height.isDefault());
        QVERIFY(!OwnEdit::isRunning());
        m_stack->undo();
        QVERIFY(cone->height.isDefault());
    }

    void sliderSteps_data()
    {
        QTest::addColumn<bool>("live");
        for (const char *const how : {"key", "wheel", "groove", "assistive"}) {
            QTest::addRow("%s, live", how) << true;
            QTest::addRow("%s, box off", how) << false;
        }
    }

    void sliderSteps()
    {
        QFETCH(bool, live);
        const QString how = QString(QTest::currentDataTag()).section(',', 0, 0);
        SoCone *const cone = coneOfOddHeight();
        control<QCheckBox>("Cone.height")->setChecked(live);
        slider()->setFocus();
        for (int i = 0; i < 3; ++i) {
            if (how == "key")
                QTest::keyClick(slider(), Qt::Key_Right);
            else if (how == "wheel")
                wheel(slider(), 120);
            else if (how == "groove")
                QTest::mouseClick(slider(), Qt::LeftButton, {}, {slider()->width() - 4, slider()->height() / 2});
            else
                slider()->setValue(slider()->value() + slider()->singleStep());
            QApplication::processEvents();
        }
        QVERIFY(cone->height.getValue() > 2.36f);
        QCOMPARE(height()->text(), QString::number(cone->height.getValue()));
        QCOMPARE(m_stack->count(), 1);
        m_stack->undo();
        QVERIFY(hasOddHeight());
    }

    void stepsMergeUntilFocusLeaves()
    {
        slider()->setFocus();
        QTest::keyClick(slider(), Qt::Key_Right);
        QTest::keyClick(slider(), Qt::Key_Right);
        height()->setFocus();
        slider()->setFocus();
        QTest::keyClick(slider(), Qt::Key_Right);
        QCOMPARE(m_stack->count(), 2);
        QTest::keyClick(slider(), Qt::Key_Left);
        QCOMPARE(m_stack->count(), 1); // there and back is no step
        m_stack->undo();
        QVERIFY((*m_cone)->height.isDefault());
    }

    void refusals()
    {
        SoCone *const cone = *m_cone;
        Ref<SoCalculator> engine;
        engine->expression = "oa = a * 2";
        cone->height.connectFrom(&engine->oa);
        for (const float value : {1.5f, 2.0f, 1.25f}) {
            engine->a = value;
            QApplication::processEvents();
            QCOMPARE(height()->text(), QString::number(value * 2));
        }
        QFrame *const row = qobject_cast<QFrame *>(height()->parentWidget()->parentWidget());
        QVERIFY(row->accessibleDescription().contains("Calculator.oa"));
        typeHeight("7");
        QVERIFY(m_stack->count() == 0 && cone->height.getValue() == 2.5f && height()->text() == "2.5");
    }

    void silentDisconnection()
    {
        SoCone *const cone = *m_cone;
        cone->height.connectFrom(&cone->bottomRadius);
        QApplication::processEvents();
        QWidget *const row = height()->parentWidget()->parentWidget();
        QVERIFY(row->accessibleDescription().contains("Cone.bottomRadius"));
        cone->height.disconnect(); // of which Coin tells nobody
        height()->setFocus();
        QVERIFY(!row->accessibleDescription().contains("Cone.bottomRadius"));
        typeHeight("7");
        QCOMPARE(cone->height.getValue(), 7.0f);
        QCOMPARE(m_messages, QStringList());
    }
};

QTEST_MAIN(EditTest)
#include "tst_edit.moc"
