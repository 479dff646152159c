// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include "tools/nodescope/EditManager.h"
#include "tools/nodescope/FieldPanel.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QUndoStack>

#include <Inventor/SoInteraction.h>
#include <Inventor/SoOutput.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/engines/SoCalculator.h>
#include <Inventor/fields/SoSFVec3f.h>
#include <Inventor/lists/SoTypeList.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoPackedColor.h>
#include <Inventor/nodes/SoPointLight.h>
#include <Inventor/nodes/SoText2.h>

#include <cmath>
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

QByteArray saved(SoNode *node)
{
    SoOutput out;
    out.setBuffer(std::malloc(1024), 1024, std::realloc);
    SoWriteAction(&out).apply(node);
    void *buffer = nullptr;
    size_t size = 0;
    out.getBuffer(buffer, size);
    const QByteArray text(static_cast<const char *>(buffer), int(size));
    std::free(buffer);
    return text;
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

void wheel(QWidget *target, int delta)
{
    const QPointF at = target->rect().center();
    QWheelEvent event(at, target->mapToGlobal(at.toPoint()), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event); // only such go on to the parent
    qApp->notify(target, &event);
}

class PaintCount : public QObject
{
public:
    explicit PaintCount(QWidget *watched) { watched->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
    int paints = 0;
};

class ParsingEditor : public RecordingEditor
{
public:
    using RecordingEditor::RecordingEditor;
    void applyChanges() override { lastField->set("1 2 three"); }
};
} // namespace

class PanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void commit_data();
    void commit();
    void undoIsExact_data();
    void undoIsExact();
    void noChangeLeavesNothing();
    void drag();
    void clickOnHandle();
    void sliderSteps_data();
    void sliderSteps();
    void stepsMergeUntilFocusLeaves();
    void buttons();
    void refusals_data();
    void refusals();
    void parserRefuses();
    void unfinishedText();
    void undoKeyGoesToApplication();
    void followsOncePerTurn();
    void followsEngine();
    void reuse();
    void rangesAreReset();
    void unfocusedWheelScrolls();
    void nodeStaysAlive();
    void largeValues();
    void everyNodeClass();

private:
    template <class Control> Control *control(const char *field)
    {
        for (QFrame *const row : m_panel->findChildren<QFrame *>()) {
            if (row->accessibleName().endsWith(QString::fromLatin1(field)))
                return row->findChild<Control *>();
        }
        return nullptr;
    }
    QLineEdit *height() { return control<QLineEdit>("Cone.height"); }
    QSlider *slider() { return control<QSlider>("Cone.height"); }
    void typeHeight(const QString &text, Qt::Key end = Qt::Key_Return)
    {
        retype(height(), text);
        QTest::keyClick(height(), end);
    }

    std::unique_ptr<QUndoStack> m_stack;
    std::unique_ptr<FieldPanel> m_panel;
    std::unique_ptr<Ref<SoCone>> m_cone;
    QStringList m_messages;
};

void PanelTest::initTestCase()
{
    Complaints::listen();
    SoInteraction::init();
}

void PanelTest::init()
{
    m_cone = std::make_unique<Ref<SoCone>>();
    m_stack = std::make_unique<QUndoStack>();
    m_panel = std::make_unique<FieldPanel>(m_stack.get());
    m_messages.clear();
    connect(m_panel.get(), &FieldPanel::message, this, [this](const QString &text) { m_messages << text; });
    m_panel->resize(500, 300);
    m_panel->show();
    m_panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
    m_panel->setNode(*m_cone);
}

void PanelTest::cleanup()
{
    m_panel.reset();
    m_stack.reset();
    m_cone.reset();
    QCOMPARE(Complaints::take(), QByteArray());
}

void PanelTest::commit_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("leaving") << int(Qt::Key_Tab);
}

void PanelTest::commit()
{
    QFETCH(int, key);
    SoCone *const cone = *m_cone;
    const QByteArray before = saved(cone);
    typeHeight("3.5", Qt::Key(key));
    QApplication::processEvents();
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

void PanelTest::undoIsExact_data()
{
    QTest::addColumn<float>("value");
    QTest::newRow("tenth") << 0.1f;
    QTest::newRow("seven digits") << 2.3456789f;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("infinity") << std::numeric_limits<float>::infinity();
    QTest::newRow("minus zero") << -0.0f;
    QTest::newRow("denormal") << std::numeric_limits<float>::denorm_min();
}

void PanelTest::undoIsExact()
{
    QFETCH(float, value);
    SoCone *const cone = *m_cone;
    cone->height = value;
    QApplication::processEvents();
    typeHeight("0");
    QCOMPARE(bitsOf(cone->height.getValue()), 0u);
    QCOMPARE(m_stack->count(), 1);
    m_stack->undo();
    QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(value));
    m_stack->redo();
    QCOMPARE(bitsOf(cone->height.getValue()), 0u);
}

void PanelTest::noChangeLeavesNothing()
{
    SoCone *const cone = *m_cone;
    const QByteArray before = saved(cone);
    typeHeight("2");
    typeHeight("2.000", Qt::Key_Tab);
    QCOMPARE(m_stack->count(), 0);
    QVERIFY(cone->height.isDefault());
    QCOMPARE(saved(cone), before);
}

void PanelTest::drag()
{
    SoCone *const cone = *m_cone;
    cone->height = 2.3456789f;
    QApplication::processEvents();
    const QPoint start = handleOf(slider());
    QTest::mousePress(slider(), Qt::LeftButton, {}, start);
    for (int i = 1; i <= 5; ++i)
        QTest::mouseMove(slider(), start + QPoint(10 * i, 0));
    QVERIFY(cone->height.getValue() > 2.5f); // at once
    QCOMPARE(m_stack->count(), 0);
    QApplication::processEvents();
    QTest::mouseRelease(slider(), Qt::LeftButton, {}, start + QPoint(50, 0));
    QCOMPARE(m_stack->count(), 1);
    m_stack->undo();
    QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(2.3456789f));
}

void PanelTest::clickOnHandle()
{
    SoCone *const cone = *m_cone;
    cone->height = 2.3456789f;
    QApplication::processEvents();
    const QPoint start = handleOf(slider());
    QTest::mouseClick(slider(), Qt::LeftButton, {}, start);
    QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(2.3456789f));
    QTest::mousePress(slider(), Qt::LeftButton, {}, start);
    QTest::mouseMove(slider(), start + QPoint(30, 0));
    QVERIFY(cone->height.getValue() != 2.3456789f);
    QTest::mouseMove(slider(), start);
    QTest::mouseRelease(slider(), Qt::LeftButton, {}, start);
    QCOMPARE(bitsOf(cone->height.getValue()), bitsOf(2.3456789f));
    QCOMPARE(m_stack->count(), 0);
}

void PanelTest::sliderSteps_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<bool>("live");
    for (const bool live : {true, false}) {
        for (const char *const how : {"key", "wheel", "groove", "assistive"})
            QTest::addRow("%s, %s", how, live ? "live" : "box off") << QString::fromLatin1(how) << live;
    }
}

void PanelTest::sliderSteps()
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

void PanelTest::stepsMergeUntilFocusLeaves()
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

void PanelTest::buttons()
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

void PanelTest::refusals_data()
{
    QTest::addColumn<QString>("how");
    for (const char *const how : {"type", "drag", "key", "default"})
        QTest::newRow(how) << QString::fromLatin1(how);
}

void PanelTest::refusals()
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

void PanelTest::parserRefuses()
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

void PanelTest::unfinishedText()
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

void PanelTest::undoKeyGoesToApplication()
{
    QAction *const undo = m_stack->createUndoAction(m_panel.get());
    undo->setShortcut(QKeySequence::Undo);
    m_panel->addAction(undo);
    typeHeight("3");
    QTest::keyClick(height(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE((*m_cone)->height.getValue(), 2.0f);
}

void PanelTest::followsOncePerTurn()
{
    SoCone *const cone = *m_cone;
    QApplication::processEvents();
    PaintCount edit(height());
    PaintCount other(control<QLineEdit>("Cone.bottomRadius"));
    for (int i = 1; i <= 100; ++i)
        cone->height = float(i) / 20;
    QApplication::processEvents();
    QCOMPARE(height()->text(), QString("5"));
    QTRY_VERIFY(edit.paints > 0);
    QCOMPARE(edit.paints, 1);
    QCOMPARE(other.paints, 0);

    retype(height(), "7");
    cone->height = 6;
    cone->bottomRadius = 3;
    QApplication::processEvents();
    QCOMPARE(height()->text(), QString("7")); // still being typed
    QCOMPARE(control<QLineEdit>("Cone.bottomRadius")->text(), QString("3"));
    QTest::keyClick(height(), Qt::Key_Escape);
    QCOMPARE(height()->text(), QString("6"));
    QCOMPARE(m_stack->count(), 0);
}

void PanelTest::followsEngine()
{
    Ref<SoCone> master;
    (*m_cone)->height.connectFrom(&master->bottomRadius);
    for (int i = 3; i < 6; ++i) {
        master->bottomRadius = float(i);
        QApplication::processEvents();
        QCOMPARE(height()->text(), QString::number(i));
    }
}

void PanelTest::reuse()
{
    QLineEdit *const kept = height();
    Ref<SoCone> second;
    second->height = 4;
    retype(height(), "3");
    m_panel->setNode(second);
    QCOMPARE((*m_cone)->height.getValue(), 3.0f); // what was typed belonged to the first
    QCOMPARE(height(), kept);
    QVERIFY(kept->hasFocus());
    QCOMPARE(kept->text(), QString("4"));
    typeHeight("8");
    QCOMPARE(second->height.getValue(), 8.0f);
    QCOMPARE((*m_cone)->height.getValue(), 3.0f);
    (*m_cone)->height = 1;
    QApplication::processEvents();
    QCOMPARE(kept->text(), QString("8"));
}

void PanelTest::rangesAreReset()
{
    Ref<SoCone> wide;
    wide->height = -500;
    const int top = slider()->maximum();
    m_panel->setNode(wide);
    QVERIFY(slider()->minimum() < 0);
    m_panel->setNode(*m_cone);
    QCOMPARE(slider()->minimum(), 0);
    QCOMPARE(slider()->maximum(), top);
    Ref<SoPointLight> light;
    m_panel->setNode(light);
    QTest::mouseClick(control<QCheckBox>("PointLight.on"), Qt::LeftButton);
    QVERIFY(!light->on.getValue());
    QCOMPARE(m_stack->undoText(), QString::fromUtf8("PointLight.on: TRUE \u2192 FALSE"));
}

void PanelTest::unfocusedWheelScrolls()
{
    m_panel->resize(400, 80);
    QApplication::processEvents();
    auto *const bar = m_panel->findChild<QScrollArea *>()->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    m_panel->setFocus();
    wheel(slider(), -120);
    QVERIFY(bar->value() > 0);
    QCOMPARE((*m_cone)->height.getValue(), 2.0f);
    const int position = bar->value();
    m_panel->setNode(Ref<SoCone>());
    QCOMPARE(bar->value(), position);
}

void PanelTest::nodeStaysAlive()
{
    auto node = std::make_unique<Ref<SoCone>>();
    SoCone *const cone = *node;
    m_panel->setNode(cone);
    node.reset();
    typeHeight("3");
    QCOMPARE(cone->getRefCount(), 2); // the panel and the undo step
    retype(height(), "4");
    m_panel->setNode(nullptr);
    QCOMPARE(cone->getRefCount(), 2); // two undo steps
    m_stack->undo();
    QCOMPARE(cone->height.getValue(), 3.0f);
}

void PanelTest::largeValues()
{
    Ref<SoCoordinate3> points;
    points->point.setNum(1000000);
    m_panel->setNode(points);
    QVERIFY(control<QLineEdit>("Coordinate3.point")->text().startsWith("(1000000) "));
    Ref<SoText2> text;
    text->string = QByteArray(10 * 1000 * 1000, 'x').constData();
    m_panel->setNode(text);
    QVERIFY(control<QLineEdit>("Text2.string")->text().startsWith("\"xxx"));
    QVERIFY(control<QLineEdit>("Text2.string")->text().size() < 1000);
}

void PanelTest::everyNodeClass()
{
    SoTypeList types;
    SoType::getAllDerivedFrom(SoNode::getClassTypeId(), types);
    QVERIFY(types.getLength() > 100);
    for (int i = 0; i < types.getLength(); ++i) {
        if (!types[i].canCreateInstance())
            continue;
        const Ref<SoNode> node(static_cast<SoNode *>(types[i].createInstance()));
        const QByteArray before = saved(node);
        Complaints::take(); // Coin's own
        m_panel->setNode(node);
        QVERIFY2(Complaints::take().isEmpty(), types[i].getName().getString());
        QCOMPARE(saved(node), before);
    }
    m_panel->setNode(nullptr);
    QCOMPARE(m_stack->count(), 0);
    Complaints::take();
}

QTEST_MAIN(PanelTest)
#include "tst_panel.moc"
