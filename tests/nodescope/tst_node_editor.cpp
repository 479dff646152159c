// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include "tools/nodescope/CoinSetup.h"
#include "tools/nodescope/MainWindow.h"
#include "tools/nodescope/SceneDocument.h"
#include "tools/nodescope/SceneTree.h"

#include <HbRangeComponent.h>
#include <HbSFFloatWidget.h>
#include <HbSFLineWidget.h>

#include <QAction>
#include <QDockWidget>
#include <QFile>
#include <QSlider>
#include <QTemporaryDir>

#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoPointLight.h>
#include <Inventor/nodes/SoSeparator.h>

#include <stdexcept>

namespace
{
using Manager = HbFieldEditorCommandManager;

HbFieldEditors *newHeight(Manager *manager, QWidget *parent)
{
    return new HbSFFloatWidget("tall", HbRangeComponent(0.0F, 9.0F, true), manager, parent, nullptr, {});
}

/// What a plug-in registers: edits the height of the selected cone through the tool.
class ConeEditor : public HbEditors
{
public:
    ConeEditor(HbGUIManagement *window, QWidget *parent) : HbEditors(parent, {}), m_window(window)
    {
        registerEditor(SoCone::getClassTypeId());
    }

    SbString getName() const override { return "Cones"; }

    void updateEditor() override
    {
        if (const auto act = std::exchange(onUpdate, {})) {
            act();
            return;
        }
        delete m_height;
        const auto create = [this](Manager *manager) { return newHeight(manager, this); };
        m_height = m_window->createFieldEditor(&static_cast<SoCone *>(currentNode)->height, create);
        m_height->show();
    }

    QLineEdit *edit() const { return m_height->findChild<QLineEdit *>(); }

    std::function<void()> onUpdate; ///< once
    using HbEditors::currentNode;

private:
    HbGUIManagement *m_window;
    QPointer<HbFieldEditors> m_height;
};

/// An editor of a plug-in's own making: shows centimetres, in edits that it makes anew each time.
class Centimetres : public HbSFieldWidget
{
public:
    Centimetres(Manager *manager, QWidget *parent) : HbSFieldWidget("cm", manager, parent, "Centimetres", {}) { }

    void refresh() override
    {
        for (QLineEdit *const edit : std::exchange(m_edits, {}))
            edit->deleteLater(); // it may be what speaks
        for (int i = 0; editedField() && i < 3; ++i) {
            m_edits << new QLineEdit(QString::number(point().getValue()[i] * 100), this);
            connect(m_edits[i], &QLineEdit::textEdited, this, [this] { setCommandValue(); });
        }
        HbSFieldWidget::refresh();
    }
    void applyChanges() override
    {
        const auto metres = [this](int i) { return m_edits[i]->text().toFloat() / 100; };
        point().setValue(metres(0), metres(1), metres(2));
    }
    bool edited() override { return true; }

    QList<QLineEdit *> m_edits;

private:
    SoSFVec3f &point() const { return static_cast<SoSFVec3f &>(*editedField()); }
};
} // namespace

/// The editor of the selected node, and what the window does for those of plug-ins.
class TestNodeEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setUpCoin(false);
        Complaints::listen();
        QFile file(m_scene);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("#Inventor V2.1 ascii\nSeparator { DEF first Cone { } DEF second Cone { } Cube { } PointLight { } "
                   "Coordinate3 { } }\n");
    }

    void init()
    {
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        QVERIFY(m_window->open(m_scene));
        m_editor = new ConeEditor(m_window.get(), &m_home);
        select(QStringLiteral("first"));
    }

    void cleanup()
    {
        m_window.reset();
        delete m_editor;
        QCOMPARE(Complaints::take(), QByteArray());
    }

    void isBorrowedWhileItsNodeIsSelected()
    {
        QVERIFY(m_editor->isVisible() && m_window->isAncestorOf(m_editor));
        select(QStringLiteral("0/2")); // the cube
        QVERIFY(!m_editor->isVisible());
        QCOMPARE(m_editor->parentWidget(), &m_home);
        select(QStringLiteral("second"));
        QVERIFY(m_editor->isVisible());
        m_window.reset();
        QCOMPARE(m_editor->parentWidget(), &m_home);
    }

    void itsEditsAreUndoneAndFollowed()
    {
        auto *const first = static_cast<SoCone *>(m_editor->currentNode);
        retype(m_editor->edit(), QStringLiteral("4"));
        QTest::keyClick(m_editor->edit(), Qt::Key_Return);
        QCOMPARE(first->height.getValue(), 4.0F);
        QCOMPARE(m_window->document()->undoStack()->count(), 1);
        m_window->document()->undoStack()->undo();
        QCOMPARE(first->height.getValue(), 2.0F);
        QTRY_COMPARE(m_editor->edit()->text(), QStringLiteral("2"));

        retype(m_editor->edit(), QStringLiteral("5")); // and not Return
        select(QStringLiteral("second"));
        QCOMPARE(first->height.getValue(), 5.0F);
        QCOMPARE(m_editor->edit()->text(), QStringLiteral("2"));
        QCOMPARE(m_window->document()->undoStack()->count(), 1);
    }

    void mayDieAtAnyTime()
    {
        retype(m_editor->edit(), QStringLiteral("4"));
        delete m_editor;
        select(QStringLiteral("second"));

        m_editor = new ConeEditor(m_window.get(), &m_home);
        m_window->pluginsChanged(); // as the plug-ins' dialog tells
        QVERIFY(m_editor->isVisible());
        m_editor->onUpdate = [this] { delete m_editor; };
        select(QStringLiteral("first"));
        QVERIFY(!m_editor);
    }

    void nodeLeavesTheSceneWhileItIsEdited()
    {
        m_window->document()->root()->removeAllChildren();
        QTRY_VERIFY(!m_editor->isVisible());
    }

    void activationMayDoAnything()
    {
        const auto meanwhile = [this](const std::function<void()> &act) {
            select(QStringLiteral("0/2")); // the cube
            m_editor->onUpdate = act;
            select(QStringLiteral("second"));
        };
        meanwhile([this] { select(QStringLiteral("0/2")); });
        QVERIFY(!m_editor->isVisible());
        meanwhile([this] { m_window->pluginsChanged(); });
        QVERIFY(m_editor->isVisible());
        meanwhile([this] { m_window->open(m_scene); });
        QVERIFY(!m_editor->isVisible());
        meanwhile([] { throw std::runtime_error("boom"); });
        QVERIFY(m_window->messages().last().contains("boom"));
    }

    void fieldEditorsOfAllKinds()
    {
        QVERIFY(!m_window->createFieldEditor(&cone()->height, [](Manager *) { return nullptr; }));
        QVERIFY(!HbGUIManagement().createFieldEditor(&cone()->height, [](Manager *) { return nullptr; }));

        select(QStringLiteral("0/3"));
        auto &place = static_cast<SoPointLight *>(m_window->tree()->selectedNode())->location;
        Centimetres *own = nullptr;
        m_window->createFieldEditor(&place, [&](Manager *manager) { return own = new Centimetres(manager, &m_home); });
        own->m_edits[1]->clear();
        QTest::keyClicks(own->m_edits[1], "2");
        QCOMPARE(place.getValue(), SbVec3f(0, 0.02F, 1));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_window->document()->undoStack()->undo();
        QTRY_COMPARE(own->m_edits[1]->text(), QStringLiteral("0"));
        delete own;
    }

    void nothingIsLostInADock()
    {
        auto *const dock = new QDockWidget(m_window.get());
        m_window->addDockWidget(Qt::LeftDockWidgetArea, dock);
        SoCone *const edited = cone();
        auto *const editor
            = m_window->createFieldEditor(&edited->height, [&](Manager *manager) { return newHeight(manager, dock); });
        dock->setWidget(editor);
        editor->show();
        retype(editor->findChild<QLineEdit *>(), QStringLiteral("5"));
        for (QAction *const action : m_window->findChildren<QAction *>())
            if (action->shortcuts().contains(QKeySequence::Save))
                action->trigger();
        QCOMPARE(edited->height.getValue(), 5.0F);
        QVERIFY(!m_window->isWindowModified());

        auto *const slider = editor->findChild<QSlider *>();
        QTest::mousePress(slider, Qt::LeftButton, {}, slider->rect().center());
        slider->setSliderDown(true);
        slider->setSliderPosition(slider->minimum());
        delete editor;
        QVERIFY(edited->height.getValue() < 5);
        QVERIFY(m_window->isWindowModified());
        m_window->document()->undoStack()->undo();
        QCOMPARE(edited->height.getValue(), 5.0F);
    }

private:
    void select(const QString &path)
    {
        QString problem;
        QVERIFY2(m_window->select(path, &problem), qPrintable(problem));
    }

    SoCone *cone() const { return static_cast<SoCone *>(m_window->tree()->selectedNode()); }

    QTemporaryDir m_directory;
    QString m_scene = m_directory.filePath(QStringLiteral("cones.iv"));
    QWidget m_home;
    std::unique_ptr<MainWindow> m_window;
    QPointer<ConeEditor> m_editor;
};

QTEST_MAIN(TestNodeEditor)
#include "tst_node_editor.moc"
