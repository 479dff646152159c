// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Desktop.h"

#include <sys/stat.h>

namespace
{
QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
}

void writeFile(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void setWidth(Desktop &tool, const QString &width)
{
    tool.selectRow("Cube");
    tool.click(tool.control("Cube.width", "QLineEdit"));
    tool.press("ctrl+a");
    tool.type(width);
    tool.press("Return");
    QTRY_COMPARE(tool.value("width"), width);
}

QString question(Desktop &tool)
{
    return tool.named("qt_msgbox_label").text();
}

void escape(Desktop &tool)
{
    tool.press("Escape");
    QTRY_VERIFY(tool.controls("", "qt_msgbox_label").isEmpty());
}
} // namespace

/// Opening and saving: nothing is lost, and everything is said.
class TestDesktopFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startWindowManager(); }

    void savesOnlyChangesAndKeepsWhatGetsLost()
    {
        Desktop tool("# one\nCube { width 1 } # two, \"not a text\"\nInfo { string \"# none\" }\nRotor { }");
        const QByteArray before = contentOf(tool.sceneFile());
        const QString backup = tool.sceneFile() + QStringLiteral(".orig");
        QTest::qWait(300); // in which the rotor turns
        QVERIFY(!tool.isModified());
        tool.press("ctrl+s");
        tool.named("scene.iv is as it was: there is nothing to save.");
        QCOMPARE(contentOf(tool.sceneFile()), before);

        setWidth(tool, QStringLiteral("2.5"));
        tool.press("ctrl+s");
        QVERIFY2(question(tool).contains(QStringLiteral("2 comments")), qPrintable(question(tool)));
        escape(tool);
        QTRY_VERIFY(tool.isModified());
        QCOMPARE(contentOf(tool.sceneFile()), before);

        tool.press("ctrl+s");
        tool.click(tool.named("&Save", "QPushButton"));
        QTRY_VERIFY(!tool.isModified());
        QVERIFY(contentOf(tool.sceneFile()).contains("width 2.5"));
        QCOMPARE(contentOf(backup), before);
        setWidth(tool, QStringLiteral("3"));
        tool.press("ctrl+s"); // is not said again
        QTRY_VERIFY(!tool.isModified());
        QCOMPARE(contentOf(backup), before);
    }

    void nodesOfOtherFilesAreNotEdited()
    {
        const QTemporaryDir directory;
        const QString other = directory.filePath(QStringLiteral("other.iv"));
        writeFile(other, "#Inventor V2.1 ascii\nCube { width 4 }\nCone { }\n");
        Desktop tool("File { name \"" + other.toUtf8() + "\" }");
        tool.selectRow("Cube");
        tool.doubleClick(tool.control("Cube.width", "QLineEdit"));
        tool.type(QStringLiteral("9"));
        tool.press("Return");
        QTest::qWait(100);
        QCOMPARE(tool.value("width"), QStringLiteral("4"));
        QVERIFY(!tool.isModified());

        tool.click(tool.named("Cube", "cell"), 3);
        tool.click(tool.named("&Open other.iv", "entry"));
        QTRY_VERIFY(tool.state()[QStringLiteral("title")].toString().startsWith(QStringLiteral("other.iv")));
        setWidth(tool, QStringLiteral("9"));
    }

    void changesElsewhereAndFailuresAreSaid()
    {
        Desktop tool("Cube { width 1 }");
        setWidth(tool, QStringLiteral("2"));
        const QByteArray others = "#Inventor V2.1 ascii\nCube { width 7 }\n";
        writeFile(tool.sceneFile(), others);
        tool.press("ctrl+s");
        QVERIFY(question(tool).contains(QStringLiteral("Another program has changed scene.iv")));
        escape(tool);
        QCOMPARE(contentOf(tool.sceneFile()), others);

        QFile::remove(tool.sceneFile());
        QCOMPARE(mkfifo(QFile::encodeName(tool.sceneFile()).constData(), 0600), 0);
        tool.press("ctrl+s");
        QVERIFY(question(tool).contains(QStringLiteral("scene.iv could not be saved: it is no regular file")));
        escape(tool);
        QVERIFY(tool.isModified());

        tool.press("ctrl+q");
        QVERIFY(question(tool).contains(QStringLiteral("changes to scene.iv")));
        escape(tool);
        QFile::remove(tool.sceneFile());
    }

    void reloads()
    {
        Desktop tool("Cube { width 1 }");
        setWidth(tool, QStringLiteral("2"));
        writeFile(tool.sceneFile(), "#Inventor V2.1 ascii\nCube { width 7 }\n");
        tool.press("F5");
        QVERIFY(question(tool).contains(QStringLiteral("lose the changes")));
        tool.press("Return"); // loses nothing
        QTRY_VERIFY(tool.controls("", "qt_msgbox_label").isEmpty());
        QVERIFY(tool.isModified());
        tool.press("F5");
        tool.click(tool.named("&Reload", "QPushButton"));
        QTRY_COMPARE(tool.value("width"), QStringLiteral("7"));
        QVERIFY(!tool.isModified());
        QCOMPARE(tool.selectedType(), QStringLiteral("Cube"));
    }

    void startScreenListsExamplesAndRecentFiles()
    {
        Desktop tool("");
        for (const char *heading : {"Examples", "Recent"}) {
            tool.named(heading, "QLabel");
            const QRect link = tool.named("harbour.iv", "QLabel").place();
            tool.click(link.topLeft() + QPoint(link.height(), link.height() / 2));
            QTRY_VERIFY(tool.state()[QStringLiteral("title")].toString().startsWith(QStringLiteral("harbour.iv")));
            tool.restart();
        }
    }
};

QTEST_MAIN(TestDesktopFiles)

#include "tst_desktop_files.moc"
