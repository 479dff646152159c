// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PanelFixture.h"

#include "tools/nodescope/EditManager.h"

#include <QAction>
#include <QCheckBox>
#include <QPushButton>
#include <QStyleOptionSlider>

#include <Inventor/engines/SoCalculator.h>
#include <Inventor/fields/SoSFVec3f.h>

#include <cstring>
#include <limits>

namespace
{
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

/// Unlike dragTo() says, in Qt 5 too, that the button is held.
void dragTo(QWidget *target, const QPoint &at)
{
    QMouseEvent event(QEvent::MouseMove, at, target->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

class ParsingEditor : public RecordingEditor
{
public:
    using RecordingEditor::RecordingEditor;
    void applyChanges() override { lastField->set("1 2 three"); }
};
} // namespace

class EditTest : public PanelFixture
{
    Q_OBJECT

private Q_SLOTS:
    void commit_data();
    void commit();
    void undoIsExact_data();
    void undoIsExact();
    void noChangeLeavesNothing();
    void drag();
    void clickOnHandle();
    void undoneInDrag_data();
    void undoneInDrag();
    void anotherNodeInDrag();
    void sliderSteps_data();
    void sliderSteps();
    void stepsMergeUntilFocusLeaves();
    void buttons();
    void refusals_data();
    void refusals();
    void silentDisconnection();
    void parserRefuses();
    void unfinishedText();
    void undoKeyGoesToApplication();
};

void EditTest::commit_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("leaving") << int(Qt::Key_Tab);
}

void EditTest::commit()
{
    QFETCH(int, key);
    SoCone *const cone = *m_cone;
    const QByteArray before = saved(cone);
    typeHeight("3.50", Qt::Key(key));
    QCOMPARE(height()->text(), QString("3.5"));
    QCOMPARE(cone->height.getValue(), 3.5f);
    QCOMPARE(m_stack->count(), 1);
    QCOMPARE(m_stack->undoText(), QString::fromUtf8("Cone.height: 2 \u2192 3.5"));
    QTest::mouseClick(control<QPushButton>("Cone.height"), Qt::LeftButton);
    QCOMPARE(m_stack->count(), 2);
    m_stack->undo();
    m_stack->undo();
    QCOMPARE(saved(cone), before);
    QApplication::processEvents();
    QCOMPARE(height()->text(), QString("2"));
}

void EditTest::undoIsExact_data()
{
    QTest::addColumn<float>("value");
    QTest::newRow("tenth") << 0.1f;
    QTest::newRow("seven digits") << 2.3456789f;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("infinity") << std::numeric_limits<float>::infinity();
    QTest::newRow("minus zero") << -0.0f;
    QTest::newRow("denormal") << std::numeric_limits<float>::denorm_min();
}

void EditTest::undoIsExact()
{
    QFETCH(float, value);
    SoCone *const cone = *m_cone;
    cone->height = value;
    QApplication::processEvents();
    typeHeight("1");
    QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(1));
    QCOMPARE(m_stack->count(), 1);
    m_stack->undo();
    QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(value));
    m_stack->redo();
    QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(1));
}

void EditTest::noChangeLeavesNothing()
{
    SoCone *const cone = *m_cone;
    const QByteArray before = saved(cone);
    typeHeight("2");
    typeHeight("2.000", Qt::Key_Tab);
    QCOMPARE(m_stack->count(), 0);
    QVERIFY(cone->height.isDefault());
    QCOMPARE(saved(cone), before);
}

void EditTest::drag()
{
    SoCone *const cone = *m_cone;
    cone->height = 2.3456789f;
    QApplication::processEvents();
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
    QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(2.3456789f));
    QApplication::processEvents();

    const QPoint aside(slider()->width() - 4, slider()->height() / 2);
    QTest::mousePress(slider(), Qt::MiddleButton, {}, aside); // the handle jumps here
    dragTo(slider(), aside - QPoint(20, 0));
    QTest::mouseRelease(slider(), Qt::MiddleButton, {}, aside - QPoint(20, 0));
    QCOMPARE(m_stack->count(), 1);
    m_stack->undo();
    QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(2.3456789f));
}

void EditTest::clickOnHandle()
{
    SoCone *const cone = *m_cone;
    cone->height = 2.3456789f;
    QApplication::processEvents();
    const QPoint start = handleOf(slider());
    QTest::mouseClick(slider(), Qt::LeftButton, {}, start);
    QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(2.3456789f));
    QTest::mousePress(slider(), Qt::LeftButton, {}, start);
    dragTo(slider(), start + QPoint(30, 0));
    QVERIFY(cone->height.getValue() != 2.3456789f);
    dragTo(slider(), start);
    QTest::mouseRelease(slider(), Qt::LeftButton, {}, start);
    QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(2.3456789f));
    QCOMPARE(m_stack->count(), 0);
}

void EditTest::undoneInDrag_data()
{
    QTest::addColumn<bool>("sameField");
    QTest::addColumn<bool>("movesOn");
    QTest::addColumn<bool>("live");
    for (const int bits : {0, 1, 2, 3, 4, 5, 6, 7})
        QTest::addRow("%s field, %s, %s", bits & 1 ? "same" : "other", bits & 2 ? "moves on" : "let go at once",
                      bits & 4 ? "live" : "box off")
            << bool(bits & 1) << bool(bits & 2) << bool(bits & 4);
}

void EditTest::undoneInDrag()
{
    QFETCH(bool, sameField);
    QFETCH(bool, movesOn);
    QFETCH(bool, live);
    SoCone *const cone = *m_cone;
    cone->height = 2.3456789f;
    QApplication::processEvents();
    control<QCheckBox>("Cone.height")->setChecked(live);
    const quint32 before = bitsOf(2.3456789f);
    QLineEdit *const edited = sameField ? height() : control<QLineEdit>("Cone.bottomRadius");
    retype(edited, "3");
    QTest::keyClick(edited, Qt::Key_Return);
    QPoint at = handleOf(slider());
    QTest::mousePress(slider(), Qt::LeftButton, {}, at);
    dragTo(slider(), at += QPoint(20, 0));
    m_stack->undo();
    if (movesOn)
        dragTo(slider(), at += QPoint(20, 0));
    QTest::mouseRelease(slider(), Qt::LeftButton, {}, at);

    const bool isStep = !sameField || movesOn;
    QCOMPARE(bitsOf(cone->height.getValue()) != before, isStep);
    QCOMPARE(m_stack->canUndo(), isStep);
    QCOMPARE(m_stack->canRedo(), !isStep);
    m_stack->undo();
    QCOMPARE(bitsOf(cone->height.getValue()), before);
}

void EditTest::anotherNodeInDrag()
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

void EditTest::sliderSteps_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<bool>("live");
    for (const bool live : {true, false}) {
        for (const char *const how : {"key", "wheel", "groove", "assistive"})
            QTest::addRow("%s, %s", how, live ? "live" : "box off") << QString::fromLatin1(how) << live;
    }
}

void EditTest::sliderSteps()
{
    QFETCH(QString, how);
    QFETCH(bool, live);
    SoCone *const cone = *m_cone;
    cone->height = 2.3456789f;
    QApplication::processEvents();
    control<QCheckBox>("Cone.height")->setChecked(live);
    slider()->setFocus();
    for (int i = 0; i < 3; ++i) {
        if (how == QLatin1String("key"))
            QTest::keyClick(slider(), Qt::Key_Right);
        else if (how == QLatin1String("wheel"))
            wheel(slider(), 120);
        else if (how == QLatin1String("groove"))
            QTest::mouseClick(slider(), Qt::LeftButton, {}, {slider()->width() - 4, slider()->height() / 2});
        else
            slider()->setValue(slider()->value() + 1);
        QApplication::processEvents();
    }
    QVERIFY(cone->height.getValue() > 2.36f);
    QCOMPARE(height()->text(), QString::number(cone->height.getValue()));
    QCOMPARE(m_stack->count(), 1);
    m_stack->undo();
    QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(2.3456789f));
}

void EditTest::stepsMergeUntilFocusLeaves()
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
    QCOMPARE((*m_cone)->height.getValue(), 2.0f);
    QVERIFY((*m_cone)->height.isDefault());
}

void EditTest::buttons()
{
    SoCone *const cone = *m_cone;
    cone->height = 0.1f;
    const QByteArray before = saved(cone);
    QTest::mouseClick(m_panel->findChildren<QPushButton *>("m_ignoreButton").at(1), Qt::LeftButton);
    QVERIFY(cone->height.isIgnored());
    QTest::mouseClick(m_panel->findChildren<QPushButton *>("m_defaultButton").at(1), Qt::LeftButton);
    QCOMPARE(cone->height.getValue(), 2.0f);
    QVERIFY(cone->height.isDefault());
    QVERIFY(cone->height.isIgnored());
    QCOMPARE(m_stack->count(), 2);
    m_stack->undo();
    m_stack->undo();
    QCOMPARE(saved(cone), before);
}

void EditTest::refusals_data()
{
    QTest::addColumn<QString>("how");
    for (const char *const how : {"type", "drag", "key", "default"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

void EditTest::refusals()
{
    QFETCH(QString, how);
    SoCone *const cone = *m_cone;
    Ref<SoCalculator> engine;
    engine->expression = "oa = a * 2";
    engine->a = 1.25f;
    cone->height.connectFrom(&engine->oa);
    QApplication::processEvents();
    QFrame *const row = qobject_cast<QFrame *>(height()->parentWidget()->parentWidget());
    QVERIFY(row->accessibleDescription().contains("Calculator.oa"));
    QCOMPARE(height()->text(), QString("2.5"));

    slider()->setFocus();
    if (how == QLatin1String("type"))
        typeHeight("7");
    else if (how == QLatin1String("drag"))
        QTest::mouseClick(slider(), Qt::LeftButton, {}, {slider()->width() - 4, slider()->height() / 2});
    else if (how == QLatin1String("key"))
        QTest::keyClick(slider(), Qt::Key_Right);
    else
        QTest::mouseClick(row->findChild<QPushButton *>("m_defaultButton"), Qt::LeftButton);

    QCOMPARE(m_messages.size(), 1);
    QVERIFY(m_messages.first().contains("Calculator.oa"));
    QCOMPARE(m_stack->count(), 0);
    QCOMPARE(cone->height.getValue(), 2.5f);
    QCOMPARE(height()->text(), QString("2.5"));
}

void EditTest::silentDisconnection()
{
    SoCone *const cone = *m_cone;
    cone->height.connectFrom(&cone->bottomRadius);
    QApplication::processEvents();
    QWidget *const row = height()->parentWidget()->parentWidget();
    QVERIFY(row->accessibleDescription().contains("Cone.bottomRadius"));
    cone->height.disconnect(); // of which Coin tells nobody
    height()->setFocus();
    QCOMPARE(row->accessibleDescription(), QString());
    typeHeight("7");
    QCOMPARE(cone->height.getValue(), 7.0f);
    QCOMPARE(m_messages, QStringList());
}

void EditTest::parserRefuses()
{
    SoSFVec3f field;
    field.setValue(4, 5, 6);
    ParsingEditor editor;
    EditManager manager(m_stack.get());
    QSignalSpy spy(&manager, &EditManager::message);
    manager.setEditor(&editor);
    manager.setField(&field);
    manager.sfieldSetValue(nullptr);
    QCOMPARE(field.getValue(), SbVec3f(4, 5, 6));
    QCOMPARE(m_stack->count(), 0);
    QCOMPARE(spy.count(), 1);
}

void EditTest::unfinishedText()
{
    retype(height(), "12");
    QTest::keyClick(height(), Qt::Key_Escape);
    QCOMPARE(height()->text(), QString("2"));
    retype(height(), "1e");
    QTest::keyClick(height(), Qt::Key_Return);
    QTest::keyClick(height(), Qt::Key_Tab);
    QApplication::processEvents();
    QCOMPARE(height()->text(), QString("2"));
    QCOMPARE(m_stack->count(), 0);
}

void EditTest::undoKeyGoesToApplication()
{
    QAction *const undo = m_stack->createUndoAction(m_panel.get());
    undo->setShortcut(QKeySequence::Undo);
    m_panel->addAction(undo);
    typeHeight("3");
    QTest::keyClick(height(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE((*m_cone)->height.getValue(), 2.0f);
}

QTEST_MAIN(EditTest)
#include "tst_edit.moc"
