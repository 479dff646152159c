// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TestSupport.h"

#include <HbGUIManager.h>
#include <HbNscPluginsManagerDialog.h>

#include "support/PathExpansion.h"

#include <QFileDialog>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <Inventor/nodes/SoCone.h>

#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
const QByteArray fromManager("Coin error in HbGUIManager(): ");
const QByteArray couldNotLoad(fromManager + "Could not load plugin '@' !");
const QByteArray stillInUse("Coin warning in HbGUIManager(): Plugin '@' is still in use: its code stays in memory");
const QByteArray couldNotTerminate("Could not terminate @ !"); // on the other channel, which has no prefix

QByteArray notLocated(const char *name)
{
    return fromManager + "Could not locate method '_ZN" + name + "11getInstanceEP15HbGUIManagement'\n  in '@' !";
}

QByteArray about(const fs::path &path, QByteArray report)
{
    return report.replace('@', path.c_str());
}

/// What a plug-in writes down at its end.
QStringList released(const fs::path &path)
{
    return {"released " + QFile::decodeName(path.c_str())};
}

/// Makes a library or another file that may stand in a plug-in directory.
using Make = std::function<void(const fs::path &)>;

const auto copyOf = [](const char *library) -> Make {
    return [=](const fs::path &path) { fs::copy_file(fs::path(PLUGINS) / library, path); };
};
const Make good = copyOf("libtest_plugin.so");
const auto truncatedTo = [](std::uintmax_t size) -> Make {
    return [=](const fs::path &path) { good(path), fs::resize_file(path, size); };
};
const auto content = [](const QByteArray &text) -> Make {
    return [=](const fs::path &path) { std::ofstream(path) << text.toStdString(); };
};
const auto linkTo
    = [](const char *target) -> Make { return [=](const fs::path &path) { fs::create_symlink(target, path); }; };

/// A file in the plug-in directory, and what is reported of it, with @ for its path.
struct Input {
    QByteArray name;
    Make make;
    QByteArray loading;
    QByteArray ending;
};

class Tool : public HbGUIManagement
{
public:
    QWidget *getStartupWidget() override { return &startup; }
    QMenu *getPluginsMenu() override { return &menu; }
    QWidget *getEditorsWidget() override { return editors; }
    void pluginsChanged() override { ++changes; }

    QWidget startup;
    QMenu menu;
    QWidget *editors = new QWidget(this);
    int changes = 0;
};

QTreeWidget *rows()
{
    for (QWidget *const widget : QApplication::allWidgets())
        if (widget->objectName() == "pluginsTree")
            return qobject_cast<QTreeWidget *>(widget);
    return nullptr;
}

/// Presses "Remove" with a row selected, or none.
void removeRow(int row)
{
    rows()->setCurrentItem(rows()->topLevelItem(row));
    rows()->window()->findChild<QPushButton *>("removeButton")->click();
}

/// Presses "Add" and chooses a file, or none.
void addFile(const fs::path &path)
{
    QTimer::singleShot(0, qApp, [&] {
        auto *const chooser = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        chooser->findChild<QLineEdit *>("fileNameEdit")->setText(QFile::decodeName(path.c_str()));
        QMetaObject::invokeMethod(chooser, path.empty() ? "reject" : "accept");
    });
    rows()->window()->findChild<QPushButton *>("addButton")->click();
}

HbEditors *editorOf(SoNode *node)
{
    HbEditors *editor = nullptr;
    HbEditors::getRegisteredEditor(node, editor);
    return editor;
}

bool isMapped(const fs::path &library)
{
    void *const handle = dlopen(library.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    return handle && dlclose(handle) == 0;
}

/// The threads that Qt paints with are told to end after main(); what they own is no leak while they do.
struct PaintersEnd {
    ~PaintersEnd() { QThread::msleep(100); }
} paintersEnd;
} // namespace

Q_DECLARE_METATYPE(Input)

/// The plug-in manager with its dialog, its preferences, and plug-in libraries good and bad.
class TestPluginLoading : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("LC_ALL", "C.UTF-8"); } // Qt 5 writes file names in the locale's encoding

private Q_SLOTS:
    void initTestCase()
    {
        Complaints::listen();
        const auto hear = [](const SoError *error, void *) { s_reports << error->getDebugString().getString(); };
        SoError::setHandlerCallback(hear, nullptr);
        SoDebugError::setHandlerCallback(hear, nullptr);
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_found = fs::path(m_dir->path().toStdString()) / "found";
        qputenv("XDG_CONFIG_HOME", m_dir->filePath("config").toUtf8());
        qputenv("NSC_PLUGINS_DIRECTORY", m_found.c_str());
        qputenv("NSC_NO_PLUGINS", "false");
    }

    void cleanup()
    {
        fs::remove_all(m_found); // QTemporaryDir removes only names that it can read
        QCOMPARE(takeReports(), QByteArrayList());
        QCOMPARE(takeLog(), QStringList());
        QCOMPARE(Complaints::take(), QByteArray());
    }

    void libraries_data()
    {
        QTest::addColumn<Input>("input");
        const auto row = [](const char *title, const QByteArray &name, const Make &make, const QByteArray &loading = {},
                            const QByteArray &ending = {}) {
            QTest::newRow(title) << Input{name, make, loading, ending};
        };
        row("plain", "libNsc_Good.so", good);
        row("link", "libNsc_Good.so", linkTo(PLUGINS "/libtest_plugin.so"));
        row("lib twice", "liblibNsc_lib.so", good);
        row("one character", "N", good);
        row("255 characters", QByteArray(255, 'L'), good);
        row("not ASCII", "Gr\xc3\xb6\xc3\x9f\x65/\xf0\x9f\x94\x8c \xff/libNsc_Good.so", good);
        row("format", "%s%n%d/libNsc_Good.so", good);
        row("widget left", "libNsc_Leaves.so", good, {}, stillInUse);

        row("no getInstance", "libNsc_NoGet.so", good, notLocated("9Nsc_NoGet"));
        row("no releaseInstance", "libNsc_NoRelease.so", good, {}, couldNotTerminate);
        row("version", "libNsc_Good.so.2.1", good, notLocated("15Nsc_Good.so.2.1"), couldNotTerminate);
        row("no object", "libNsc_Null.so", good, fromManager + "Plugin '@' returned no object");
        row("exception", "libNsc_Throws.so", good, fromManager + "Plugin '@' threw an exception: 100% sure",
            fromManager + "Plugin '@' threw an exception|" + stillInUse);

        const auto refused = [&](const char *title, const Make &make) {
            row(title, "libNsc_Good.so", make, couldNotLoad, couldNotTerminate);
        };
        refused("empty", content({}));
        refused("no data", truncatedTo(4096));
        refused("some data", truncatedTo(20000));
        refused("zeroed tail", [](const fs::path &path) {
            good(path);
            const auto size = fs::file_size(path);
            fs::resize_file(path, 4096), fs::resize_file(path, size);
        });
        refused("other machine", [](const fs::path &path) { good(path), std::fstream(path).seekp(18).put('\xf3'); });
        refused("FIFO", [](const fs::path &path) { mkfifo(path.c_str(), 0600); });
        refused("unreadable", [](const fs::path &path) { good(path), fs::permissions(path, fs::perms::none); });
        refused("dangling link", linkTo("nowhere"));
        refused("no dependency", copyOf("libtest_plugin_dependent.so"));
        refused("undefined symbol", copyOf("libtest_plugin_undefined.so"));
    }

    void libraries()
    {
        QFETCH(const Input, input);
        m_found /= "Nsc_dir.so"; // so that every name counts
        qputenv("NSC_PLUGINS_DIRECTORY", m_found.c_str());
        const fs::path path = add(m_found / input.name.toStdString(), input.make);
        if (QLatin1String(QTest::currentDataTag()) == "unreadable" && access(path.c_str(), R_OK) == 0)
            QSKIP("this user may read everything", ); // clang misses the argument
        const bool isLoaded = input.loading.isEmpty();
        Tool tool;
        {
            const HbGUIManager manager(&tool);
            QCOMPARE(takeReports().join('|'), about(path, input.loading));
            QCOMPARE(rows()->topLevelItemCount(), isLoaded ? 1 : 0);
            QVERIFY(!isLoaded || rows()->topLevelItem(0)->text(4).toLatin1() == path.c_str());
        }
        QCOMPARE(takeReports().join('|'), about(path, input.ending));
        QCOMPARE(takeLog().size(), isLoaded && input.ending != couldNotTerminate ? 1 : 0);
        if (input.loading != couldNotLoad)
            QCOMPARE(isMapped(path), !input.ending.isEmpty()); // where it may still be needed
        for (QWidget *const widget : QApplication::topLevelWidgets())
            delete dynamic_cast<HbEditors *>(widget); // runs code of the library
    }

    void withoutATool()
    {
        HbGUIManager manager(nullptr);
        for (const fs::path &path : {m_found.parent_path(), m_found, fs::path("libc.so.6"), fs::path()}) {
            QVERIFY(!manager.loadPlugin(path.c_str()));
            QCOMPARE(takeReports(), {about(path, couldNotLoad)});
        }
        const fs::path path = add(m_found / "libNsc_Good.so", good);
        QVERIFY(manager.loadPlugin(path.c_str()));
        QCOMPARE(manager.getLoadError(), QString());
        manager.unloadPlugin(path.c_str());
        QCOMPARE(takeLog(), released(path));
        HbNscPluginsManagerDialog dialog(nullptr, nullptr);
        dialog.insertPlugin(nullptr);
        dialog.addPlugin();
        dialog.removePlugin();
    }

    void scan()
    {
        for (const char *const file :
             {"Nsc_tools/a.so", "Nsc_tools/notes.txt", "Nsc_tools/.hidden.so", "Nsc_tools/.hidden/b.so",
              "Nsc_tools/c.so.d/e.f/g", "plain/h.so", "libNsc_i.SO", "plain/my.sock_Nsc_"})
            add(m_found / file, content({}));
        add(m_found / "linked", linkTo("Nsc_tools"));
        add(m_found / "libNsc_linked.so", linkTo("Nsc_tools")); // tried as a file
        add(m_found / "plain/loop", linkTo(".."));
        QByteArrayList others;
        for (const char *const file :
             {"Nsc_tools/a.so", "Nsc_tools/c.so.d/e.f/g", "libNsc_linked.so", "plain/my.sock_Nsc_"})
            others << about(m_found / file, couldNotLoad);
        for (int i = 0; i < 1000; ++i)
            add(m_found / "many" / ("libNsc_" + std::to_string(i) + ".so"), content({}));
        QByteArrayList inOrder;
        for (const auto &entry : fs::directory_iterator(m_found / "many")) // as readdir() yields them
            inOrder << about(entry.path(), couldNotLoad);

        QByteArrayList loading;
        {
            const HbGUIManager manager(nullptr);
            loading = takeReports();
        }
        QCOMPARE(takeReports().size(), loading.size());
        const int start = int(loading.indexOf(inOrder.first()));
        QCOMPARE(loading.mid(start, 1000), inOrder);
        loading.erase(loading.begin() + start, loading.begin() + start + 1000);
        std::sort(loading.begin(), loading.end());
        QCOMPARE(loading, others);
    }

    void preferences_data()
    {
        QTest::addColumn<QByteArrayList>("environment"); // as listed below
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("noPlugins");
        QTest::addColumn<QString>("directory");
        const auto row = [](const QByteArrayList &environment, const QByteArray &file, const char *noPlugins,
                            const char *directory) {
            QTest::addRow("%s %s", environment.join(' ').constData(), file.simplified().constData())
                << environment << file << QString(noPlugins) << QString(directory);
        };
        row({"FALSE", "/x"}, "", "environment false", "environment /x");
        row({"on", "/x"}, "", "environment true", "environment /x");
        row({"falsch", "/x"}, "", "default true", "environment /x");
        for (const auto &[text, word] : {std::pair("0", "file false"),
                                         {"False", "file false"},
                                         {"off", "file false"},
                                         {"no", "file false"},
                                         {"1", "file true"},
                                         {"TRUE", "file true"},
                                         {"Yes", "file true"},
                                         {"on", "file true"},
                                         {"2", "default true"}})
            row({"", "/x"}, QByteArray("NSC_NO_PLUGINS=") + text, word, "environment /x");

        const QByteArray key = "NSC_PLUGINS_DIRECTORY=";
        row({"0"}, "", "environment false", "default "); // a variable is unset: nowhere
        row({"0", "", "/krn"}, "", "environment false", "default ");
        row({"0", "", "/krn", "$KRNHOME"}, "", "environment false", "default /krn/$KRNHOME/lib");
        row({"0", "$KRNHOME/${KRNARCH}", "/krn", "x"}, "", "environment false", "environment $KRNHOME/${KRNARCH}");
        row({"0", "$KRNHOME/$KRNARCH/lib", "/krn", "x"}, "", "environment false", "environment /krn/x/lib");
        row({"0", "/\xc3\xb6"}, key + "/second", "environment false", "environment /\u00f6");
        row({"0"}, "[General]\n" + key + "/\xc3\xb6,x y", "environment false", "file /\u00f6,x y");
        row({"0", "", "/krn"}, key + "$KRNHOME", "environment false", "file $KRNHOME");
    }

    void preferences()
    {
        QFETCH(const QByteArrayList, environment);
        QFETCH(const QByteArray, file);
        const char *const names[]{"NSC_NO_PLUGINS", "NSC_PLUGINS_DIRECTORY", "KRNHOME", "KRNARCH"};
        for (int i = 0; i < 4; ++i)
            qputenv(names[i], environment.value(i));
        if (!file.isEmpty())
            add(HbGUIManager::getPreferencesFile().toStdString(), content(file));
        const auto shown = HbGUIManager::getPreferences();
        QTEST(shown.at(0).origin + ' ' + shown.at(0).value, "noPlugins");
        QTEST(shown.at(1).origin + ' ' + shown.at(1).value, "directory");
        const HbGUIManager manager(nullptr);
        QCOMPARE(QFile::decodeName(manager.getPluginsPath().getString()),
                 shown.at(0).value == "false" ? shown.at(1).value : QString());
    }

    void expansion()
    {
        qputenv("KRNHOME", "/krn");
        qunsetenv("KRNARCH");
        QCOMPARE(PathExpansion::expand("${KRNHOME}$KRNHOME/$1$$KRNHOME${KRNHOME"),
                 QByteArray("/krn/krn/$1$/krn${KRNHOME"));
        for (const char *const unset : {"$KRNHOME/${KRNARCH}/lib", "$KRNHOMES"})
            QCOMPARE(PathExpansion::expand(unset), QByteArray());
    }

    void plantedLibrary()
    {
        const QString before = QDir::currentPath();
        const fs::path planted = add(m_found / "$KRNHOME/$KRNARCH/lib/libNsc_Good.so", good);
        QDir::setCurrent(QString::fromStdString(m_found.string()));
        for (const char *const name : {"NSC_PLUGINS_DIRECTORY", "KRNHOME", "KRNARCH"})
            qunsetenv(name);
        const HbGUIManager manager(nullptr); // finds nothing: the test's end asks for the log
        QDir::setCurrent(before);
        QVERIFY(!isMapped(planted));
    }

    void directoriesOfOthers()
    {
        const QByteArray warning("Coin warning in HbGUIManager(): Other users can put plug-ins into '@'");
        for (const char *const open : {"", "below"}) {
            fs::create_directories(m_found / "below");
            fs::permissions(m_found / open, fs::perms::all);
            const HbGUIManager manager(nullptr);
            QCOMPARE(takeReports(), {about(*open ? m_found / open : m_found, warning)});
            fs::remove_all(m_found);
        }
    }

    void dialogListsAddsAndRemoves()
    {
        const fs::path found = add(m_found / "libNsc_Good.so", good);
        const fs::path fixed
            = add(m_found.parent_path() / "Gr\xc3\xb6\xc3\x9f\x65 \xf0\x9f\x94\x8c/libNsc_NoRelease.so", good);
        const fs::path wrong = add(m_found / "text.so", content({}));
        Tool tool;
        auto manager = std::make_unique<HbGUIManager>(&tool);
        QStringList shown;
        for (int column = 0; column < rows()->columnCount(); ++column)
            if (!rows()->isColumnHidden(column))
                shown << rows()->headerItem()->text(column) << rows()->topLevelItem(0)->text(column);
        QCOMPARE(shown.join(' '), QString("Name Gr\u00f6\u00df Description of the tests Help none Version 1"));
        addFile({});
        addFile(wrong);
        QCOMPARE(takeReports(), {about(wrong, couldNotLoad)});
        QCOMPARE(tool.changes, 0);
        addFile(fixed);
        addFile(found); // once more
        removeRow(-1);
        QCOMPARE(tool.changes, 2);
        HbNscPluginsManagerDialog *const dialog = manager->getDialog();
        dialog->insertFailedPlugin(wrong.c_str(), "why");
        QCOMPARE(dialog->getPaths(), QByteArrayList({found.c_str(), fixed.c_str(), found.c_str(), wrong.c_str()}));
        QVERIFY(manager->isFound(found.c_str()) && !manager->isFound(fixed.c_str()));
        removeRow(3); // there is nothing to unload
        removeRow(0);
        QCOMPARE(takeLog(), released(found));
        removeRow(1); // the same, which is gone
        removeRow(0);
        QCOMPARE(takeReports(), QByteArrayList({about(found, couldNotTerminate), about(fixed, couldNotTerminate)}));
        QVERIFY(rows()->topLevelItemCount() == 0 && tool.changes == 6);
        manager.reset();
        QCOMPARE(takeReports(), {about(found, couldNotTerminate)});
    }

    void toolsMenuAndStartScreen()
    {
        Tool tool;
        tool.startup.show();
        tool.show();
        {
            const HbGUIManager manager(&tool);
            QVERIFY(!tool.startup.isVisible());
            QAction *const entry = tool.menu.actions().value(1);
            QVERIFY(entry && entry->text() == "Plug-ins" && tool.menu.actions().first()->isSeparator());
            entry->trigger();
            entry->trigger();
            QVERIFY(rows()->window()->isVisible());
            QMetaObject::invokeMethod(entry->parent(), "hideDialog");
            QVERIFY(!rows()->window()->isVisible());
            delete rows()->window();
            for (const char *const slot : {"raiseDialog", "hideDialog", "removePlugin"})
                QMetaObject::invokeMethod(entry->parent(), slot);
        }
        QCOMPARE(tool.menu.actions(), QList<QAction *>());
    }

    void endReleasesWhatTheScanFound()
    {
        for (const char *const file : {"2/libNsc_Good.so", "1/libNsc_Good.so", "3/liblibNsc_lib.so"})
            add(m_found / file, good);
        const fs::path byHand = add(m_found / "../libNsc_Good.so", good);
        const fs::path sameByHand = m_found.parent_path() / "libNsc_Good.so";
        Tool tool;
        QStringList inOrder;
        {
            HbGUIManager manager(&tool);
            QCOMPARE(rows()->topLevelItemCount(), 3);
            for (int row = 0; row < 3; ++row)
                inOrder << "released " + rows()->topLevelItem(row)->text(4);
            QVERIFY(manager.loadPlugin(byHand.c_str()));
            QVERIFY(manager.loadPlugin(sameByHand.c_str()));
        }
        QCOMPARE(takeLog(), inOrder);
        qputenv("NSC_NO_PLUGINS", "");
        HbGUIManager(nullptr).unloadPlugin(byHand.c_str());
        QCOMPARE(takeLog().size(), 1);
        HbGUIManager(nullptr).unloadPlugin(sameByHand.c_str());
        QCOMPARE(takeReports(), {about(sameByHand, couldNotTerminate)});
    }

    void thousandRounds()
    {
        const fs::path path = add(m_found / "../libNsc_Good.so", good);
        const Ref<SoCone> cone;
        Tool tool;
        tool.show();
        HbGUIManager manager(&tool);
        // A plug-in renames the tool at its end: it has left the screen by then, and cannot be released again.
        connect(&tool, &QObject::objectNameChanged, &tool, [&] { manager.unloadPlugin(path.c_str()); });
        const auto widgets = QApplication::allWidgets().size();
        for (int round = 0; round < 1000; ++round) {
            QVERIFY(manager.loadPlugin(path.c_str()));
            HbEditors *const editor = editorOf(cone);
            QVERIFY(editor && editor->isVisible() && editor->parentWidget() == tool.editors);
            tool.setWindowTitle(QString::number(round));
            QCOMPARE(takeLog(), QStringList("title"));
            manager.unloadPlugin(path.c_str());
            QCOMPARE(takeReports(), {about(path, couldNotTerminate)});
            QCOMPARE(takeLog(), released(path));
            QVERIFY(!editorOf(cone) && !isMapped(path));
            tool.setWindowTitle("heard by nobody");
            QCoreApplication::processEvents();
        }
        QCOMPARE(QApplication::allWidgets().size(), widgets);
    }

private:
    static QByteArrayList takeReports() { return std::exchange(s_reports, {}); }
    static QStringList takeLog()
    {
        const QVariant log = qApp->property("pluginLog");
        qApp->setProperty("pluginLog", {});
        return log.toStringList();
    }
    static fs::path add(const fs::path &path, const Make &make)
    {
        fs::create_directories(path.parent_path());
        make(path);
        return path;
    }

    static inline QByteArrayList s_reports;
    std::unique_ptr<QTemporaryDir> m_dir;
    fs::path m_found; ///< where the manager looks
};

QTEST_MAIN(TestPluginLoading)
#include "tst_pluginloading.moc"
