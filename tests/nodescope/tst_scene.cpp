// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileFixture.h"

#include "tools/nodescope/FieldPanel.h"
#include "tools/nodescope/MainWindow.h"
#include "tools/nodescope/SceneDocument.h"
#include "tools/nodescope/SceneTree.h"

#include <QAction>
#include <QProcess>

#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoCylinder.h>
#include <Inventor/nodes/SoSeparator.h>

namespace
{
const QString bundledScene = QStringLiteral(HARBOR_SOURCE_DIR "/examples/scenes/harbour.iv");
const QString windmillScene = QStringLiteral(HARBOR_SOURCE_DIR "/examples/scenes/windmill.iv");

} // namespace

/// Scenes from file to file, the tree that shows them, and the whole tool on a real scene.
class TestScene : public FileFixture
{
    Q_OBJECT

private Q_SLOTS:
    void savedAsItWasOpened()
    {
        const std::pair<QByteArray, QByteArray> rows[] = {
            {"DEF A Cone { height 0.1 }\nSeparator { USE A }\nUSE A\n", "USE A"},
            {"Group { Evil { fields [ SFFloat power ] power 0.3 } EvilGroup { fields [ ] Cube { } } }\n", "power 0.3"},
            {"Evil { fields [ ] Cube { } }\n", "Cube"},
            {"Info { string \"a \\\"b\\\" \303\244\" }\n", "\"a \\\"b\\\" \303\244\""},
            {"Cone { height 1 = Calculator { a 2 expression \"oa = a*3\" } . oa }\n", "oa = a*3"},
            {"Cone { height 3.4028235e+38 bottomRadius 1e-45 }\n", "3.4028235e+38"},
            {"\n", ""},
        };
        for (const auto &[content, kept] : rows) {
            const QString original = write("#Inventor V2.1 ascii\n\n" + content);
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
    }

    void unknownTypesRunNoLibrary()
    {
        for (const QStringList &options : {QStringList(), QStringList("--allow-node-libraries")}) {
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
    }

    void formatIsKept()
    {
        const QByteArray headers[] = {"#Inventor V2.1 ascii", "#VRML V1.0 ascii", "#VRML V2.0 utf8"};
        for (const QByteArray &header : headers) {
            const QByteArray cone = header.contains("V2.0") ? "Shape { geometry Cone { } }" : "Cone { }";
            checkFormat(write(header + "\n" + cone, QStringLiteral("scene")), header);
        }
        const Ref<SoSeparator> root;
        const QString fileName = m_directory.filePath(QStringLiteral("scene"));
        QStringList messages;
        SceneFormat format;
        format.binary = true;
        QVERIFY(writeScene(root, format, fileName, &messages));
        checkFormat(fileName, "#Inventor V2.1 binary");
        format = {};
        format.gzip = true;
        QVERIFY(writeScene(root, format, fileName, &messages));
        checkFormat(fileName, "\x1f\x8b");
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
        QTRY_COMPARE(tree.topLevelItem(0)->childCount(), 3);
        QCOMPARE(tree.selectedNode(), cone);
        group->removeAllChildren(); // the selected node dies
        QTRY_COMPARE(tree.selectedNode(), group);
        root->removeAllChildren();
        QTRY_VERIFY(!tree.selectedNode());
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

private:
    /// Saves the file as it was and reads it again.
    static void checkFormat(const QString &fileName, const QByteArray &start)
    {
        QStringList messages;
        SceneDocument document;
        QVERIFY2(document.open(fileName, &messages), qPrintable(messages.join('\n')));
        QVERIFY(document.save(fileName, &messages));
        QVERIFY(contentOf(fileName).startsWith(start));
        QVERIFY(document.open(fileName, &messages));
    }
};

QTEST_MAIN(TestScene)
#include "tst_scene.moc"
