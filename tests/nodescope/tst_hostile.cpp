// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileFixture.h"

#include "tools/nodescope/CoinMessages.h"
#include "tools/nodescope/FieldLength.h"
#include "tools/nodescope/FieldPanel.h"
#include "tools/nodescope/SceneDocument.h"
#include "tools/nodescope/ScenePath.h"
#include "tools/nodescope/SceneTree.h"
#include "tools/nodescope/fields/Containment.h"
#include "tools/nodescope/fields/FieldClipboard.h"
#include "tools/nodescope/scene/FileReferences.h"
#include "tools/nodescope/tree/SceneSearch.h"

#include <QProcess>

#include <Inventor/nodes/SoIndexedFaceSet.h>
#include <Inventor/nodes/SoSeparator.h>

#include <sys/stat.h>

namespace
{
/// Whatever goes through a scene does so, and comes back.
void lookAround(SoNode *root)
{
    const SceneSearch everything(root, [](const SoNode &) { return true; });
    everything.place(everything.count() - 1);
    relativeReferences(root);
    SceneTree tree;
    tree.setScene(root);
    tree.placesOf(root);
    QUndoStack stack;
    FieldPanel panel(&stack);
    OpenNodes<SoNode> open;
    open.add(root);
    while (SoNode *const node = open.take()) {
        panel.setNode(node);
        for (SoNode *const child : childrenOf(node))
            open.add(child);
    }
    panel.setNode(nullptr);
}
} // namespace

/// Files that nobody should have made: each is opened, or refused with a reason, and one that is opened can be saved.
class TestHostile : public FileFixture
{
    Q_OBJECT

private Q_SLOTS:
    void opensOrSaysWhyNot_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("isOpened");
        QTest::addColumn<QString>("message"); // a part of what is said
        const auto refused = [this](const char *name, const QByteArray &content, const char *message) {
            QTest::newRow(name) << write(content) << false << message;
        };
        const auto opened = [this](const char *name, const QByteArray &content, const char *message = "") {
            QTest::newRow(name) << write(content) << true << message;
        };
        const QByteArray inventor = "#Inventor V2.1 ascii\n";
        const QByteArray vrml = "#VRML V2.0 utf8\n";
        const QByteArray deep = inventor + QByteArray("Separator { Info { string \"}\" }").repeated(4001);

        refused("empty", "", "empty");
        refused("no scene", "hello", "no Inventor or VRML file");
        refused("a later version", "#Inventor V9.9 ascii\nCube { }", "no Inventor or VRML file");
        opened("only a header", inventor);
        QTest::newRow("a directory") << m_directory.path() << false << "directory";
        QTest::newRow("a pipe") << pipe() << false << "standard input";
        QTest::newRow("no file") << m_directory.filePath("none") << false << "none";

        opened("binary noise", "#Inventor V2.1 binary\n" + QByteArray(64, '\xff'), "too long");
        refused("binary, cut", "#Inventor V2.1 binary\n" + QByteArray("\0\0\0\7Info\0\0\0\0", 12), "");
        refused("values, cut", inventor + "Coordinate3 { point [ 0 0 0, 1 1", "point");
        refused("a string without an end", inventor + "Info { string \"}", "quote");
        refused("a brace too few", inventor + "Separator { Cube { }", "");
        opened("a brace too many", inventor + "Cube { } } Cone { }", "line 2: no node begins here");
        opened("a NUL among nodes", inventor + "Cube { } " + QByteArray(1, '\0') + " Cone { }",
               "line 2: no node begins here");
        opened("a NUL in a string", inventor + "Info { string \"a" + QByteArray(1, '\0') + "b\" }");
        opened("bytes that are no UTF-8", inventor + "Info { string \"\xff\xfe\x80\" }");
        opened("carriage returns", "#Inventor V2.1 ascii\rSeparator { # {\r Cube { } }\r");

        refused("nested too deep", deep, "levels");
        refused("nested too deep, packed", packed(deep), "levels");
        opened("packed", packed(inventor + "Cube { }"));
        refused("packed, cut", packed(deep).left(100), "");
        const QByteArray braces(70000, '{');
        opened("braces in texts", inventor + "Info { string \"" + braces + "\" } # " + braces);
        refused("a long number", inventor + "Cube { width " + QByteArray(501, '1') + " }", "number");
        opened("the longest number", inventor + "Cube { width 1." + QByteArray(498, '1') + " }");
        refused("a long word", inventor + "DEF " + QByteArray(65001, 'a') + " Cube { }", "word");

        refused("itself as a child", inventor + "DEF A Separator { Cube { } USE A }", "itself");
        refused("itself in a field", inventor + "DEF A IndexedFaceSet { vertexProperty USE A }", "itself");
        refused("a child of itself in a field",
                inventor + "IndexedFaceSet { vertexProperty DEF A Separator { USE A } }", "itself");
        refused("itself by way of a path",
                inventor + "DEF A Separator { Cube { } Odd { fields [ SFPath p ] p Path { USE A 0 } } }", "itself");
        refused("itself as its appearance", vrml + "DEF A Group { children Shape { appearance USE A } }", "itself");
        opened("a script that knows itself", vrml + "DEF A Script { field SFNode self USE A url \"\" }", "script");
        opened("an unknown node that knows its parent",
               inventor + "DEF A Separator { Odd { fields [ SFNode p, MFNode q ] p USE A q [ USE A ] } }");

        refused("a name that nothing has", inventor + "Separator { USE Nobody }", "Nobody");
        opened("a brace for a name", inventor + "DEF } Cube { }");
        refused("a type of fields that is none", inventor + "Odd { fields [ SFOdd value ] value 1 }", "SFOdd");
        refused("a field that is none", inventor + "Cube { odd 1 }", "odd");
        opened("fields in circles", inventor + "DEF A Cone { height = USE A . height }");
        opened("files that are missing", inventor + "File { name \"no.iv\" } Texture2 { filename \"no.png\" }",
               "no.iv");
        opened("an inline that is missing", vrml + "Inline { url \"no.wrl\" }", "no.wrl");
        const auto own = [this] { return "\"" + QByteArray::number(m_files) + "\""; }; // the name of the next file
        opened("a file that names itself", inventor + "Cube { } File { name " + own() + " }", "names itself");
        opened("an inline that names itself", vrml + "Inline { url " + own() + " }", "names itself");
        opened("a file that is a pipe", inventor + "File { name \"pipe\" }", "pipe");
        opened("a file that is nested too deep", inventor + "File { name \"" + write(deep).toUtf8() + "\" }", "levels");
        refused("no number", inventor + "Cone { height nan }", "height");
        opened("a number without an end", inventor + "Cone { height 1e999 }");
        refused("an image of no size", inventor + "Texture2 { image -1 -5 9 1 2 }", "image");
#ifndef __SANITIZE_ADDRESS__ // which ends a program that asks for so much
        refused("an image larger than the memory", inventor + "DEF T Texture2 { image 32000 32000 4 1 2 }", "memory");
#endif
        opened("indices of nothing", inventor + "IndexedFaceSet { coordIndex [ 99999999, -7, 2147483647 ] }");
    }

    void opensOrSaysWhyNot()
    {
        QFETCH(QString, file);
        QFETCH(bool, isOpened);
        QFETCH(QString, message);
        SceneDocument document;
        SoNode *const before = document.root();
        QStringList messages;
        QCOMPARE(document.open(file, &messages), isOpened);
        QVERIFY2(messages.join('\n').contains(message, Qt::CaseInsensitive), qPrintable(messages.join('\n')));
        QCOMPARE(document.root() != before, isOpened);
        if (!isOpened) {
            QVERIFY(!messages.isEmpty());
            return;
        }
        const CoinMessages unheard;
        lookAround(document.root());
        const int topLevel = document.root()->getNumChildren();
        const QString first = m_directory.filePath("first");
        const QString second = m_directory.filePath("second");
        QVERIFY2(document.save(first, &messages), qPrintable(messages.join('\n')));
        QVERIFY2(document.open(first, &messages), qPrintable(messages.join('\n')));
        QCOMPARE(document.root()->getNumChildren(), topLevel);
        QVERIFY(document.save(second, &messages));
        QCOMPARE(contentOf(second), contentOf(first));
    }

    /// As a plug-in may leave it.
    void walksEndWhereANodeContainsItself()
    {
        const Ref<SoSeparator> root;
        auto *const shape = new SoIndexedFaceSet;
        auto *const loop = new SoSeparator;
        root->addChild(shape);
        shape->vertexProperty = loop;
        loop->addChild(loop);
        lookAround(root);
        FieldClipboard::copy(shape->vertexProperty);
        QVERIFY(containsItself(root) && !isLong(shape->vertexProperty));
        loop->removeAllChildren();
        QVERIFY(!containsItself(root));
    }

private:
    QString write(const QByteArray &content)
    {
        return FileFixture::write(content, QString::number(m_files++));
    }

    QByteArray packed(const QByteArray &content)
    {
        QProcess gzip;
        gzip.start("gzip", {"-c", write(content)});
        gzip.waitForFinished();
        return gzip.readAllStandardOutput();
    }

    QString pipe() const
    {
        const QString name = m_directory.filePath("pipe");
        mkfifo(QFile::encodeName(name).constData(), 0600);
        return name;
    }

    int m_files = 0;
};

QTEST_MAIN(TestHostile)
#include "tst_hostile.moc"
