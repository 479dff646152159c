// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PanelFixture.h"

#include "tools/nodescope/EditorPicture.h"
#include "tools/nodescope/FieldObserver.h"
#include "tools/nodescope/Options.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableWidget>

#include <Inventor/lists/SoTypeList.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoMatrixTransform.h>
#include <Inventor/nodes/SoPointLight.h>
#include <Inventor/nodes/SoText2.h>

namespace
{
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
} // namespace

class PanelTest : public PanelFixture
{
    Q_OBJECT

private Q_SLOTS:
    void followsOncePerTurn();
    void followsEngine();
    void reuse();
    void rangesAreReset();
    void unfocusedWheelScrolls();
    void nodeStaysAlive();
    void largeValues();
    void pictures();
    void pictureOptions_data();
    void pictureOptions();
    void everyNodeClass();
};

void PanelTest::followsOncePerTurn()
{
    SoCone *const cone = *m_cone;
    QApplication::processEvents();
    FieldObserver observer;
    observer.watch(cone);
    int changes = 0;
    connect(&observer, &FieldObserver::fieldChanged, this, [&] { ++changes; });
    PaintCount edit(height());
    PaintCount other(control<QLineEdit>("Cone.bottomRadius"));
    for (int i = 1; i <= 100; ++i)
        cone->height = float(i) / 20;
    QApplication::processEvents();
    QCOMPARE(height()->text(), QString("5"));
    QTRY_VERIFY(edit.paints > 0);
    QCOMPARE(edit.paints, 1);
    QCOMPARE(changes, 1);
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
}

void PanelTest::largeValues()
{
    Ref<SoCoordinate3> points;
    points->point.setNum(1000000);
    m_panel->setNode(points);
    QCOMPARE(control<QTableWidget>("Coordinate3.point")->rowCount(), 1000000);
    Ref<SoText2> text;
    text->string = QByteArray(10 * 1000 * 1000, 'x').constData();
    QElapsedTimer time;
    time.start();
    m_panel->setNode(text);
    m_panel->grab();
    QVERIFY2(time.elapsed() < 500, qPrintable(QString::number(time.elapsed())));
}

void PanelTest::pictures()
{
    QVERIFY(!m_panel->editorOf("matrix"));
    QWidget *const row = m_panel->editorOf("height");
    QVERIFY(row && row->isAncestorOf(height()));
    QCOMPARE(pictureOf(*row).size(), row->size());

    Ref<SoMatrixTransform> node;
    node->matrix = SbMatrix(2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1);
    m_panel->setNode(node);
    QWidget *const popup = m_panel->editorOf("matrix");
    QVERIFY(popup);
    auto *const grid = popup->findChild<QFrame *>("m_popupFrame");
    const QPixmap picture = pictureOf(*popup);
    QCOMPARE(picture.height(), popup->height() + grid->height());
    QVERIFY(!grid->isVisible());
    QCOMPARE(m_stack->count(), 0);
}

void PanelTest::pictureOptions_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("pictures"); // field, file, field, file; none where refused
    QTest::newRow("two") << QStringList{"--grab", "a=b.png", "--grab", "c=d=e.png"}
                         << QStringList{"a", "b.png", "c", "d=e.png"};
    QTest::newRow("no file") << QStringList{"--grab", "height"} << QStringList();
    QTest::newRow("no field") << QStringList{"--grab", "=b.png"} << QStringList();
}

void PanelTest::pictureOptions()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, pictures);
    int exitCode = Success;
    const auto options = Options::parse(QStringList("nodescope") + arguments, &exitCode);
    QCOMPARE(exitCode, int(pictures.isEmpty() ? BadUsage : Success));
    QStringList found;
    if (options) {
        QVERIFY(options->isScripted());
        for (const Options::Grab &grab : options->grabs)
            found << grab.field << grab.fileName;
    }
    QCOMPARE(found, pictures);
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
