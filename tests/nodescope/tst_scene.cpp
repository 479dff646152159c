// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include "tools/nodescope/CoinSetup.h"
#include "tools/nodescope/FieldPanel.h"
#include "tools/nodescope/MainWindow.h"
#include "tools/nodescope/SceneDocument.h"
#include "tools/nodescope/SceneTree.h"

#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>

#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoCylinder.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoSeparator.h>

namespace
{
const QString bundledScene = QStringLiteral(HARBOR_SOURCE_DIR "/examples/scenes/harbour.iv");
const QString windmillScene = QStringLiteral(HARBOR_SOURCE_DIR "/examples/scenes/windmill.iv");

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

template <class Node> Node *selected(MainWindow &window, const QString &path)
{
    QString problem;
    return window.select(path, &problem) ? static_cast<Node *>(window.tree()->selectedNode()) : nullptr;
}
} // namespace

/// Scenes from file to file, the tree that shows them, and the whole tool on a real scene.
class TestScene : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        setUpCoin(false);
        Complaints::listen();
    }
    void cleanup() { QCOMPARE(Complaints::take(), QByteArray()); }

    void savedAsItWasOpened_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("kept");
        QTest::newRow("several shared top-level nodes")
            << QByteArray("DEF A Cone { height 0.1 }\nSeparator { USE A }\nUSE A\n") << QByteArray("USE A");
        QTest::newRow("unknown node") << QByteArray(
            "Group { Evil { fields [ SFFloat power ] power 0.3 } EvilGroup { fields [ ] Cube { } } }\n")
                                      << QByteArray("power 0.3");
        QTest::newRow("child of an unknown node") << QByteArray("Evil { fields [ ] Cube { } }\n") << QByteArray("Cube");
        QTest::newRow("names and quotes")
            << QByteArray("Info { string \"a \\\"b\\\" \303\244\" }\n") << QByteArray("\"a \\\"b\\\" \303\244\"");
        QTest::newRow("engine") << QByteArray("Cone { height 1 = Calculator { a 2 expression \"oa = a*3\" } . oa }\n")
                                << QByteArray("oa = a*3");
        QTest::newRow("extremes") << QByteArray("Cone { height 3.4028235e+38 bottomRadius 1e-45 }\n")
                                  << QByteArray("3.4028235e+38");
        QTest::newRow("empty") << QByteArray("\n") << QByteArray();
    }

    void savedAsItWasOpened()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, kept);
        const QString original = write(QStringLiteral("scene.iv"), "#Inventor V2.1 ascii\n\n" + content);
        const QString first = m_directory.filePath(QStringLiteral("first.iv"));
        const QString second = m_directory.filePath(QStringLiteral("second.iv"));
        QStringList messages;
        SceneDocument document;
        QVERIFY2(document.open(original, &messages), qPrintable(messages.join('\n')));
        const int topLevel = document.root()->getNumChildren();
        QVERIFY(document.save(first, &messages));
        QVERIFY(document.open(first, &messages));
        QCOMPARE(document.root()->getNumChildren(), topLevel); // no level was added
        QVERIFY(document.save(second, &messages));
        QCOMPARE(contentOf(second), contentOf(first));
        QVERIFY2(contentOf(second).contains(kept), contentOf(second).constData());
        if (!content.contains("Evil")) // of which Coin tells that it does not know it
            QCOMPARE(messages, QStringList());
    }

    void unknownTypesRunNoLibrary_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("by itself") << QStringList();
        QTest::newRow("asked for") << QStringList("--allow-node-libraries");
    }

    void unknownTypesRunNoLibrary()
    {
        QFETCH(QStringList, options);
        QProcess nodescope;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LD_DEBUG", "files"); // the loader tells each library that is asked for
        nodescope.setProcessEnvironment(environment);
        const QString picture = m_directory.filePath("picture.png");
        nodescope.start(NODESCOPE, QStringList{"--screenshot", picture, windmillScene} + options);
        QVERIFY(nodescope.waitForFinished());
        QCOMPARE(nodescope.exitCode(), 0);
        const QByteArray loaded = nodescope.readAllStandardError();
        QVERIFY(loaded.contains("file=libCoin"));
        QCOMPARE(loaded.contains("file=Windsock") || loaded.contains("file=libWindsock"), !options.isEmpty());
    }

    void formatIsKept_data()
    {
        QTest::addColumn<QByteArray>("header");
        QTest::addColumn<bool>("gzip");
        QTest::newRow("ascii") << QByteArray("#Inventor V2.1 ascii") << false;
        QTest::newRow("gzip") << QByteArray("#Inventor V2.1 ascii") << true;
        QTest::newRow("binary") << QByteArray("#Inventor V2.1 binary") << false;
        QTest::newRow("VRML 1") << QByteArray("#VRML V1.0 ascii") << false;
        QTest::newRow("VRML 97") << QByteArray("#VRML V2.0 utf8") << false;
    }

    void formatIsKept()
    {
        QFETCH(QByteArray, header);
        QFETCH(bool, gzip);
        const Ref<SoSeparator> root;
        root->addChild(new SoCone);
        static_cast<SoCone *>(root->getChild(0))->height = 0.1f;
        SceneFormat format;
        format.gzip = gzip;
        format.binary = header.endsWith("binary");
        if (header.contains("VRML"))
            format.header = header;
        const QString fileName = m_directory.filePath(QStringLiteral("format"));
        QStringList messages;
        if (header.contains("V2.0"))
            write(QStringLiteral("format"), header + "\nShape { geometry Cone { height 0.1 } }\n");
        else
            QVERIFY(writeScene(root, format, fileName, &messages));
        SceneDocument document;
        QVERIFY2(document.open(fileName, &messages), qPrintable(messages.join('\n')));
        QVERIFY(document.save(fileName, &messages));
        const QByteArray content = contentOf(fileName);
        QVERIFY(gzip ? content.startsWith("\x1f\x8b") : content.startsWith(header));
        QVERIFY(document.open(fileName, &messages)); // and reads again
    }

    void unreadableFilesLeaveTheSceneOpen_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        QTest::newRow("broken") << QByteArray("#Inventor V2.1 ascii\n\nSeparator {\n  Cone { height x }\n}\n")
                                << "line";
        QTest::newRow("no scene") << QByteArray("hello") << "bad.iv";
        QTest::newRow("empty") << QByteArray() << "empty";
        QTest::newRow("contains itself") << QByteArray(
            "#Inventor V2.1 ascii\nSeparator { DEF A Separator { Cube { } USE A } }")
                                         << "itself";
        QTest::newRow("too deep") << QByteArray("#Inventor V2.1 ascii\n") + QByteArray("Separator { ").repeated(20000)
                                  << "levels";
    }

    void unreadableFilesLeaveTheSceneOpen()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        SceneDocument document;
        QStringList messages;
        QVERIFY(document.open(bundledScene, &messages));
        SoNode *const root = document.root();
        QVERIFY(!document.open(write(QStringLiteral("bad.iv"), content), &messages));
        QVERIFY2(messages.join('\n').contains(reason), qPrintable(messages.join('\n')));
        QCOMPARE(document.root(), root);
        QVERIFY(!document.save(QStringLiteral("/nowhere/scene.iv"), &messages));
    }

    void largeScenesFillOnDemand()
    {
        const Ref<SoSeparator> root;
        auto *const group = new SoGroup;
        root->addChild(group);
        for (int i = 0; i < 300; ++i) {
            auto *const branch = new SoGroup;
            group->addChild(branch);
            for (int j = 0; j < 300; ++j)
                branch->addChild(new SoCone);
        }
        SceneTree tree;
        QSignalSpy newScene(&tree, &SceneTree::newSceneGraph);
        tree.setScene(root);
        QCOMPARE(newScene.size(), 1);
        QTreeWidgetItem *const branch = tree.topLevelItem(0)->child(7);
        QCOMPARE(branch->childCount(), 0);
        branch->setExpanded(true);
        QCOMPARE(branch->childCount(), 300);
    }

    void treeFollowsTheScene()
    {
        const Ref<SoSeparator> root;
        auto *const group = new SoGroup;
        auto *const cone = new SoCone;
        root->addChild(group);
        group->addChild(cone);
        group->addChild(cone);
        SceneTree tree;
        tree.setScene(root);
        tree.select({0, 1});
        QCOMPARE(tree.selectedNode(), cone);
        QCOMPARE(tree.placesOf(cone), 2);
        QVERIFY(tree.currentItem()->data(0, Qt::AccessibleTextRole).toString().contains("shared"));

        group->insertChild(new SoCube, 0);
        settle();
        QCOMPARE(tree.selectedNode(), cone);
        QCOMPARE(tree.topLevelItem(0)->childCount(), 3);
        group->removeAllChildren(); // the selected node dies
        settle();
        QCOMPARE(tree.selectedNode(), group);
        root->removeAllChildren();
        settle();
        QCOMPARE(tree.selectedNode(), nullptr);
    }

    void pathsOfNodes()
    {
        MainWindow window;
        QVERIFY(window.open(bundledScene));
        QString problem;
        QVERIFY(window.select(QStringLiteral("Harbour/Lighthouse/TowerBase"), &problem));
        const SoNode *const byName = window.tree()->selectedNode();
        QVERIFY(window.select(QStringLiteral("TowerBase"), &problem));
        QCOMPARE(window.tree()->selectedNode(), byName);
        QVERIFY(window.select(QStringLiteral("0/1"), &problem));
        QVERIFY(!window.select(QStringLiteral("0/99"), &problem));
        QVERIFY(problem.contains("99"));
    }

    void editUndoSaveAndReadBack()
    {
        const QString copy = m_directory.filePath(QStringLiteral("copy.iv"));
        QFile::copy(bundledScene, copy);
        MainWindow window;
        window.show();
        QVERIFY(window.open(copy));
        auto *const tower = selected<SoCylinder>(window, QStringLiteral("TowerBase"));
        QVERIFY(tower);
        const float before = tower->height.getValue();
        auto *const edit = editOf<QLineEdit>(window, QStringLiteral("height"));
        QVERIFY(edit);
        retype(edit, QStringLiteral("4.25"));
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(tower->height.getValue(), 4.25f);
        QCOMPARE(window.document()->undoStack()->count(), 1);
        QVERIFY(window.isWindowModified());
        window.findChild<QAction *>(QStringLiteral("undo"))->trigger();
        QCOMPARE(tower->height.getValue(), before);
        QVERIFY(!window.isWindowModified());
        settle();
        QCOMPARE(edit->text(), QString::number(double(before)));
        window.findChild<QAction *>(QStringLiteral("redo"))->trigger();

        auto *const sun = selected<SoDirectionalLight>(window, QStringLiteral("Sun"));
        QVERIFY(sun);
        editOf<QCheckBox>(window, QStringLiteral("on"))->click();
        QVERIFY(!sun->on.getValue());
        QStringList messages;
        QVERIFY(window.document()->save(copy, &messages));
        QVERIFY(!window.isWindowModified());

        SceneDocument again;
        QVERIFY(again.open(copy, &messages));
        QCOMPARE(static_cast<SoCylinder *>(SoNode::getByName("TowerBase"))->height.getValue(), 4.25f);
        QCOMPARE(static_cast<SoDirectionalLight *>(SoNode::getByName("Sun"))->on.getValue(), FALSE);
        QVERIFY(SoNode::getByName("TowerBase") != tower); // it is the one just read
    }

    void anotherSceneWhileAnEditorIsOpen()
    {
        MainWindow window;
        window.show();
        QVERIFY(window.open(bundledScene));
        QVERIFY(selected<SoNode>(window, QStringLiteral("TowerBase")));
        auto *const edit = editOf<QLineEdit>(window, QStringLiteral("height"));
        edit->setFocus();
        QVERIFY(window.open(bundledScene));
        settle();
        QVERIFY(!window.isWindowModified());
    }

private:
    static void settle() { QTest::qWait(20); }

    /// The control of a field's editor in the panel, found by its accessible place "Type.field".
    template <class Control> static Control *editOf(MainWindow &window, const QString &field)
    {
        const auto frames = window.panel()->findChildren<QFrame *>();
        for (QFrame *const frame : frames) {
            if (frame->inherits("HbSFieldWidget") && frame->accessibleName().endsWith('.' + field)) {
                const auto controls = frame->findChildren<Control *>();
                return controls.isEmpty() ? nullptr : controls.last();
            }
        }
        return nullptr;
    }

    QString write(const QString &name, const QByteArray &content)
    {
        QFile file(m_directory.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return file.fileName();
    }

    QTemporaryDir m_directory;
};

QTEST_MAIN(TestScene)
#include "tst_scene.moc"
