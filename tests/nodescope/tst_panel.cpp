// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PanelFixture.h"

#include "tools/nodescope/EditorPicture.h"
#include "tools/nodescope/FieldObserver.h"
#include "tools/nodescope/Options.h"

#include <QScrollArea>
#include <QScrollBar>

#include <Inventor/lists/SoTypeList.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoMatrixTransform.h>
#include <Inventor/nodes/SoSphere.h>

#include <cfloat>

class PanelTest : public PanelFixture
{
    Q_OBJECT

private Q_SLOTS:
    void followsOncePerTurn()
    {
        SoCone *const cone = *m_cone;
        QApplication::processEvents();
        FieldObserver observer;
        observer.watch(cone);
        int changes = 0;
        connect(&observer, &FieldObserver::fieldChanged, this, [&] { ++changes; });
        for (int i = 1; i <= 100; ++i)
            cone->height = float(i) / 20;
        QApplication::processEvents();
        QCOMPARE(height()->text(), QString("5"));
        QCOMPARE(changes, 1);

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

    void reuse()
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

    void whoeverGetsTheFocusMayAskForAnotherNode()
    {
        const Ref<SoSphere> last;
        const QMetaObject::Connection asking = connect(qApp, &QApplication::focusChanged, this, [&](QWidget *old) {
            if (old)
                m_panel->setNode(last);
        });
        retype(height(), "7");
        m_panel->setNode(Ref<SoCube>());
        disconnect(asking);
        QCOMPARE((*m_cone)->height.getValue(), 7.0f);
        QVERIFY(m_panel->editorOf("radius") && !m_panel->editorOf("width"));
        enter(control<QLineEdit>("Sphere.radius"), "3");
        QCOMPARE(last->radius.getValue(), 3.0f);
    }

    void defaultThatIsWrittenOutIsNoChange()
    {
        const Ref<SoCone> node;
        const auto isChanged
            = [this] { return m_panel->editorOf("parts")->findChild<QPushButton *>("m_defaultButton")->isEnabled(); };
        node->parts.setDefault(FALSE);
        m_panel->setNode(node);
        QVERIFY(!isChanged());
        node->parts = SoCone::SIDES;
        QApplication::processEvents();
        QVERIFY(isChanged());
    }

    void pageThatDiesWithTheFocus()
    {
        const Ref<SoMatrixTransform> node;
        m_panel->setNode(node);
        auto *const grid = m_panel->editorOf("matrix")->findChild<QFrame *>("m_popupFrame");
        grid->show();
        const auto numbers = grid->findChildren<QLineEdit *>();
        retype(numbers[0], "-");
        retype(numbers[1], "-"); // which nobody has refused yet when it dies
        m_panel->setNode(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(m_stack->count(), 0);
    }

    void handleStandsWhereTheValueIs()
    {
        const auto share = [this] {
            const double span = double(slider()->maximum()) - slider()->minimum();
            return qRound(100 * (slider()->value() - slider()->minimum()) / span);
        };
        const struct {
            float value;
            int share;
        } heights[] = {{2, 40}, {-500, 25}, {3e9f, 30}, {-6e-20f, 35}, {0, 0}, {FLT_MAX, 100}, {2, 40}};
        for (const auto &height : heights) {
            const Ref<SoCone> node;
            node->height = height.value;
            m_panel->setNode(node);
            QCOMPARE(share(), height.share);
        }
    }

    void unfocusedWheelScrolls()
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

    void pictures()
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

    void pictureOptions()
    {
        int exitCode = Success;
        const auto parse
            = [&](const QStringList &rest) { return Options::parse(QStringList("nodescope") + rest, &exitCode); };
        const auto options = parse({"--grab", "a=b.png", "--grab", "c=d=e.png"});
        QVERIFY(options && options->isScripted() && options->grabs.size() == 2);
        QCOMPARE(options->grabs[1].field + ' ' + options->grabs[1].fileName, QString("c d=e.png"));
        for (const char *const refused : {"height", "=b.png"}) {
            QVERIFY(!parse({"--grab", refused}));
            QCOMPARE(exitCode, int(BadUsage));
        }
    }

    void everyFieldTypeHasItsEditor()
    {
        const QByteArrayList own{"SFBool",   "SFBox3s", "SFColor",    "SFFloat",  "SFImage",  "SFInt32",  "SFMatrix",
                                 "SFName",   "SFPlane", "SFRotation", "SFShort",  "SFString", "SFUInt32", "SFUShort",
                                 "SFVec2f",  "SFVec2s", "SFVec3f",    "SFVec4f",  "MFColor",  "MFFloat",  "MFInt32",
                                 "MFMatrix", "MFPlane", "MFShort",    "MFString", "MFUInt32", "MFUShort", "MFVec2f",
                                 "MFVec2s",  "MFVec3f", "MFVec4f"};
        SoTypeList types;
        SoType::getAllDerivedFrom(SoField::getClassTypeId(), types);
        for (int i = 0; i < types.getLength(); ++i) {
            if (!types[i].canCreateInstance())
                continue;
            const QByteArray name = types[i].getName().getString();
            show(name + " value");
            const QByteArray type = field<SoField>()->getTypeId().getName().getString(); // not of an alias
            const bool isMany = field<SoField>()->isOfType(SoMField::getClassTypeId());
            const QString editor = own.contains(type) ? "Hb" + type + "Widget" : "HbMFDefaultFieldWidget";
            QVERIFY2((!isMany && !own.contains(type)) || m_panel->findChild<QFrame *>(editor), name.constData());
            if (!isMany)
                continue;
            const int count = field<SoMField>()->getNum();
            m_panel->findChild<QPushButton *>("m_addButton")->click();
            QCOMPARE(field<SoMField>()->getNum(), count + 1);
            m_stack->undo();
            QCOMPARE(field<SoMField>()->getNum(), count);
            m_panel->setNode(nullptr);
        }
    }

    void everyNodeClass()
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
};

QTEST_MAIN(PanelTest)
#include "tst_panel.moc"
