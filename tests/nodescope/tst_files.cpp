// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileFixture.h"

#include "tools/nodescope/CoinRef.h"
#include "tools/nodescope/FieldText.h"
#include "tools/nodescope/SceneDocument.h"
#include "tools/nodescope/ScenePath.h"
#include "tools/nodescope/scene/NodeOrigin.h"
#include "tools/nodescope/scene/SourceText.h"

#include <QProcess>

#include <Inventor/nodes/SoSeparator.h>

#include <csignal>
#include <cstring>
#include <sys/resource.h>
#include <unistd.h>

namespace
{
const QByteArray inventor = "#Inventor V2.1 ascii\n";
} // namespace

/// What happens to a file that is opened and saved.
class TestFiles : public FileFixture
{
    Q_OBJECT

private Q_SLOTS:
    void lossesOfAFile()
    {
        struct Row {
            QByteArray text;
            int comments, connections, driven;
        };
        const Row rows[] = {
            {inventor + "# a\nCube { } # b\n#", 3, 0, 0},
            {inventor + "Info { string \"# \\\" #\n#\" }\nInfo { string a#b\n}", 0, 0, 0},
            {inventor + "DEF A Cone { }\nCone { height 1 = USE A . height } # c", 1, 0, 1},
            {inventor + "Cone { height 1 = Calculator { expression \"oa = 3\" } . oa }", 0, 0, 1},
            {inventor + "Cone { height 1 = Cone { height 8 } . height }", 0, 1, 0}, // which stands nowhere else
            {inventor + "Rotor { }", 0, 0, 1},
            {"#VRML V2.0 utf8\nDEF T Transform { }\nDEF S PositionInterpolator { }\n"
             "ROUTE S.value_changed TO T.set_translation # d\n",
             1, 0, 1},
        };
        for (const Row &row : rows) {
            const SceneFile scene = readScene(write(row.text));
            const SaveLosses losses = scene.losses;
            SoField *source = nullptr;
            SoNode *const first = childrenOf(scene.root.get()).front();
            const bool isHeldByNobody = row.connections > 0 && first->getField("height")->getConnectedField(source);
            const auto holder = coinRef(isHeldByNobody ? source->getContainer() : nullptr); // Coin would forget it
            const bool isRight = losses.comments == row.comments && losses.connections == row.connections
                && losses.drivenValues == row.driven;
            QVERIFY2(isRight, qPrintable(row.text + losses.lines().join('\n').toUtf8()));
        }
        QCOMPARE(Complaints::take(), QByteArray());
    }

    void countsInPackedFilesAndNotInBinaryOnes()
    {
        const QString fileName = write(inventor + QByteArray("# c\nCube { }\n").repeated(10000));
        QCOMPARE(SourceText::ofFile(fileName).comments(), 10000);
        QCOMPARE(QProcess::execute("gzip", {"-kf", fileName}), 0);
        QCOMPARE(readScene(fileName + ".gz").losses.comments, 10000);
        QCOMPARE(readScene(write("#Inventor V2.1 binary\n# = #")).losses.comments, 0);
    }

    void readingTellsHowFarItIs()
    {
        std::vector<double> parts;
        const QString fileName
            = write(inventor + "Coordinate3 { point [ " + QByteArray("1.5 2.5 3.5, ").repeated(500000) + "] }");
        QVERIFY(readScene(fileName, [&parts](double part) { parts.push_back(part); }).root);
        QVERIFY(!parts.empty() && parts.front() > 0 && parts.back() <= 1 && std::is_sorted(parts.begin(), parts.end()));
    }

    void onlyRegularFilesAreReadAndReplaced()
    {
        const QString pipe = m_directory.filePath("pipe");
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        for (const QString &name : {pipe, QString("/dev/zero")}) {
            QStringList messages;
            SceneDocument document;
            QVERIFY(!document.open(name, &messages)); // at once
            QVERIFY2(messages.join('\n').contains("standard input"), qPrintable(messages.join('\n')));
            QVERIFY(document.open(write(inventor + "Cube { }"), &messages));
            QVERIFY(!document.save(name, &messages));
            QVERIFY2(messages.last().contains("no regular file"), qPrintable(messages.last()));
            QVERIFY(!FileState(name).isRegular() && FileState(name).exists());
        }
    }

    void replacingKeepsModeAndOwnerAndSaysWhatWentWrong()
    {
        const QString fileName = write(inventor + "Cube { }");
        const QByteArray path = QFile::encodeName(fileName);
        QCOMPARE(chmod(path.constData(), 0640), 0);
        const bool isOthers = geteuid() == 0 && chown(path.constData(), 1234, 2345) == 0;
        SceneDocument document;
        QStringList messages;
        QVERIFY(document.open(fileName, &messages));
        QVERIFY(!document.isFileTouched());
        QVERIFY(document.save(fileName, &messages));
        struct stat state = {};
        QCOMPARE(stat(path.constData(), &state), 0);
        QCOMPARE(int(state.st_mode & 07777), 0640);
        QVERIFY(!isOthers || (state.st_uid == 1234 && state.st_gid == 2345));
        QVERIFY(!document.isFileTouched());

        const QByteArray before = contentOf(fileName);
        const SizeLimit small(10); // bytes, as if the disk were full
        messages.clear();
        QVERIFY(!document.save(fileName, &messages));
        QVERIFY2(messages.last().contains(std::strerror(EFBIG)), qPrintable(messages.last()));
        QCOMPARE(contentOf(fileName), before);
    }

    void backupsOverwriteNothing()
    {
        const QString fileName = write("first");
        QString problem;
        QVERIFY(FileBackup::of(fileName).keep(fileName, &problem));
        QVERIFY(FileBackup::of(fileName).isThere);
        write("second");
        QVERIFY(FileBackup::of(fileName).keep(fileName, &problem));
        QCOMPARE(contentOf(fileName + ".orig"), QByteArray("first"));
        QCOMPARE(contentOf(fileName + ".orig.1"), QByteArray("second"));
        write("first");
        QCOMPARE(FileBackup::of(fileName).fileName, fileName + ".orig");
    }

    void nodesThatAreNotSavedHere()
    {
        const QString other = m_directory.filePath("other.iv");
        QVERIFY(QFile::copy(write(inventor + "Separator { Cube { } }"), other));
        const QByteArray file = "File { name \"" + other.toUtf8() + "\" }";
        const QByteArray proto = "PROTO P [ ] { Shape { geometry Cone { } } }\nDEF T Transform { children P { } }";
        const QByteArray vrml = "#VRML V2.0 utf8\n";
        const std::tuple<QByteArray, QString, NodeOrigin::Kind> rows[] = {
            {inventor + "Separator { Cube { } }", "0/0", NodeOrigin::Scene},
            {inventor + file, "0", NodeOrigin::Scene},
            {inventor + file, "0/0", NodeOrigin::File},
            {inventor + file, "0/0/0", NodeOrigin::File},
            {vrml + "Inline { url \"" + write(vrml + "Shape { }", "inline.wrl").toUtf8() + "\" }", "0/0",
             NodeOrigin::File},
            {vrml + proto, "T", NodeOrigin::Scene},
            {vrml + proto, "T/0/0", NodeOrigin::Prototype},
        };
        for (const auto &[text, path, kind] : rows) {
            const SceneFile scene = readScene(write(text));
            NodeOrigin::setScene(scene.root.get());
            QString problem;
            SoNode *node = scene.root.get();
            for (const int index : findPath(node, path, &problem))
                node = childrenOf(node)[static_cast<std::size_t>(index)];
            QVERIFY2(node != scene.root.get(), qPrintable(problem));
            const NodeOrigin origin = NodeOrigin::of(node);
            QVERIFY(NodeOrigin::of(scene.root.get()).kind == NodeOrigin::Scene);
            QVERIFY2(origin.kind == kind, (text + path.toUtf8()).constData());
            SoFieldList fields;
            if (node->getFields(fields) > 0)
                QCOMPARE(FieldText::obstacle(*fields[0]).isEmpty(), kind == NodeOrigin::Scene);
        }
        NodeOrigin::setScene(nullptr);
    }

private:
    /// Of files that are written, while it stands.
    class SizeLimit
    {
    public:
        explicit SizeLimit(rlim_t bytes)
        {
            signal(SIGXFSZ, SIG_IGN);
            getrlimit(RLIMIT_FSIZE, &m_before);
            const rlimit limit{bytes, m_before.rlim_max};
            setrlimit(RLIMIT_FSIZE, &limit);
        }
        ~SizeLimit() { setrlimit(RLIMIT_FSIZE, &m_before); }
        SizeLimit(const SizeLimit &) = delete;
        SizeLimit &operator=(const SizeLimit &) = delete;

    private:
        rlimit m_before = {};
    };
};

QTEST_MAIN(TestFiles)
#include "tst_files.moc"
