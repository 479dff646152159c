// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include "tools/nodescope/CoinSetup.h"
#include "tools/nodescope/MainWindow.h"
#include "tools/nodescope/SceneDocument.h"
#include "tools/nodescope/SceneTree.h"

#include <HbRangeComponent.h>
#include <HbSFFloatWidget.h>

#include <QFile>
#include <QTemporaryDir>

#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoSeparator.h>

namespace
{
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
        if (isFragile) {
            delete this;
            return;
        }
        delete m_height;
        m_height = nullptr;
        m_window->createFieldEditor(
            &static_cast<SoCone *>(currentNode)->height, [this](HbFieldEditorCommandManager *manager) {
                return m_height
                    = new HbSFFloatWidget("tall", HbRangeComponent(0.0F, 9.0F, true), manager, this, nullptr, {});
            });
        m_height->show();
    }

    QLineEdit *edit() const { return m_height->findChild<QLineEdit *>(); }
    bool isFragile = false;
    using HbEditors::currentNode;

private:
    HbGUIManagement *m_window;
    HbSFFloatWidget *m_height = nullptr;
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
        file.write("#Inventor V2.1 ascii\nSeparator { DEF first Cone { } DEF second Cone { } Cube { } }\n");
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
        m_editor->isFragile = true;
        select(QStringLiteral("first"));
        QVERIFY(!m_editor);
    }

    void nodeLeavesTheSceneWhileItIsEdited()
    {
        m_window->document()->root()->removeAllChildren();
        QTRY_VERIFY(!m_editor->isVisible());
    }

private:
    void select(const QString &path)
    {
        QString problem;
        QVERIFY2(m_window->select(path, &problem), qPrintable(problem));
    }

    QTemporaryDir m_directory;
    QString m_scene = m_directory.filePath(QStringLiteral("cones.iv"));
    QWidget m_home;
    std::unique_ptr<MainWindow> m_window;
    QPointer<ConeEditor> m_editor;
};

QTEST_MAIN(TestNodeEditor)
#include "tst_node_editor.moc"
