// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Desktop.h"

/// The plug-ins that a person chooses.
class TestDesktopLibrary : public QObject
{
    Q_OBJECT

    static void open(Desktop &tool)
    {
        QTRY_VERIFY(tool.named("", "MainWindow").is("active")); // by then it stays where it is
        tool.choose("&Tools", "Plug-ins");
    }
    static Control row(Desktop &tool, const QString &name)
    {
        const QList<Control> cells = tool.controls("", "cell");
        const auto found = std::find_if(cells.begin(), cells.end(), [&](const Control &c) { return c.text() == name; });
        return found == cells.end() ? Control() : *found;
    }
    static bool isOpen(Desktop &tool) { return !tool.controls("", "HbNscPluginsManagerDialog").isEmpty(); }
    static bool says(Desktop &tool, const char *text)
    {
        const QList<Control> labels = tool.controls("", "QLabel");
        return std::any_of(labels.begin(), labels.end(), [&](const Control &c) { return c.text().contains(text); });
    }
    static QString addCopy(Desktop &tool, const char *library, const char *name)
    {
        const QString file = tool.directory() + QLatin1String(name);
        QFile::copy(QLatin1String(PLUGINS) + QLatin1String(library), file);
        tool.click(tool.named("Add"));
        tool.named("fileNameEdit");
        tool.type(file);
        tool.press("Return");
        return file;
    }

private Q_SLOTS:
    void initTestCase() { startWindowManager(); }

    void dialogStandsOverTheWindow()
    {
        Desktop tool("Cone { }");
        const QRect window = tool.named("", "MainWindow").place();
        open(tool);
        QTRY_VERIFY(isOpen(tool));
        const QRect dialog = tool.named("HbNscPluginsManagerDialog").place();
        QVERIFY((dialog.center() - window.center()).manhattanLength() < 80);
        QTRY_COMPARE(tool.pixel(dialog.center()), QColor(Qt::white)); // its empty list
        tool.click(QPoint(window.center().x(), window.bottom() - 8)); // which would raise the window
        QTest::qWait(300);
        QCOMPARE(tool.pixel(dialog.center()), QColor(Qt::white));
        tool.click(dialog.center());
        tool.press("Escape");
        QTRY_VERIFY(!isOpen(tool));
    }

    void chosenPluginsComeAgain()
    {
        const QString good = QString::fromUtf8("Gr\u00f6\u00df");
        Desktop tool("Cone { }");
        open(tool);
        addCopy(tool, "/libtest_plugin_undefined.so", "/libNsc_Broken.so");
        QTRY_VERIFY(says(tool, "undefined symbol")); // as the linker puts it
        tool.press("Return");
        const QString file = addCopy(tool, "/libtest_plugin.so", "/libNsc_Good.so");
        QTRY_VERIFY(row(tool, good).isThere());
        tool.restart();
        open(tool);
        QTRY_VERIFY(row(tool, good).isThere());
        QVERIFY(!row(tool, QStringLiteral("libNsc_Broken.so")).isThere());

        QFile::remove(file);
        tool.restart();
        open(tool);
        QTRY_VERIFY(row(tool, QStringLiteral("libNsc_Good.so")).isThere()); // not forgotten
        tool.click(row(tool, QStringLiteral("libNsc_Good.so")));
        tool.click(tool.named("Remove"));
        QTRY_VERIFY(!row(tool, QStringLiteral("libNsc_Good.so")).isThere());
        QVERIFY(isOpen(tool));
    }
};

QTEST_MAIN(TestDesktopLibrary)

#include "tst_desktop_library.moc"
