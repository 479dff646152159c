// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Desktop.h"

/// The first minute with the tool.
class TestDesktop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startWindowManager(); }

    void selectsEditsUndoesAndSaves()
    {
        Desktop tool("DEF Box Cube { width 1 }\nSphere { }");
        tool.selectRow("Cube");
        QTRY_COMPARE(tool.selectedName(), QStringLiteral("Box"));
        tool.doubleClick(tool.control("Cube.width", "QLineEdit"));
        tool.type(QStringLiteral("2.5"));
        tool.press("Return");
        QTRY_COMPARE(tool.value("width"), QStringLiteral("2.5"));
        QVERIFY(tool.isModified());
        tool.press("ctrl+z");
        QTRY_COMPARE(tool.value("width"), QStringLiteral("1"));
        QVERIFY(!tool.isModified());
        tool.choose("&Edit", "&Redo");
        QTRY_COMPARE(tool.value("width"), QStringLiteral("2.5"));
        tool.press("ctrl+s");
        QTRY_VERIFY(!tool.isModified());
        QFile saved(tool.sceneFile());
        QVERIFY(saved.open(QIODevice::ReadOnly) && saved.readAll().contains("width 2.5"));
    }
};

QTEST_MAIN(TestDesktop)

#include "tst_desktop.moc"
