// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

// Opens scenes, selects each node in turn, plays with the editor of each of its fields and takes the edits back.
// Fails where a scene is then saved otherwise than before, or where anything complains.

#include "TestSupport.h"
#include "monkey/Hands.h"

#include "tools/nodescope/CoinMessages.h"
#include "tools/nodescope/CoinRef.h"
#include "tools/nodescope/FieldPanel.h"
#include "tools/nodescope/SceneDocument.h"
#include "tools/nodescope/ScenePath.h"

#include <QMap>
#include <QUndoStack>

#include <Inventor/SoInteraction.h>
#include <Inventor/nodes/SoNode.h>
#include <Inventor/nodes/SoSeparator.h>

#include <set>

namespace
{
struct Counts {
    int files = 0;
    int nodes = 0;
    int fields = 0;
    int edits = 0;
    int faults = 0;
    QMap<QString, std::pair<int, int>> byEditor; ///< fields and edits
};

void collect(SoNode *node, std::set<SoNode *> *seen, std::vector<std::shared_ptr<SoNode>> *nodes)
{
    if (!seen->insert(node).second)
        return;
    nodes->push_back(coinRef(node)); // one that reads a file may drop its children meanwhile
    for (SoNode *const child : childrenOf(node))
        collect(child, seen, nodes);
}

/// Types, clicks and drags in the editor; whatever opens is closed again.
void play(HbFieldEditors *editor, QRandomGenerator &random)
{
    constexpr int deeds = 5;
    const QPointer<HbFieldEditors> alive(editor);
    for (int i = 0; i < deeds && alive; ++i) {
        Hands(alive, random).doAnything();
        qApp->processEvents(); // Qt closes the editor of a cell then
    }
    if (QWidget *const popup = QApplication::activePopupWidget())
        popup->close();
}

QByteArray saved(SceneDocument *document, const QString &fileName)
{
    QStringList messages;
    QFile file(fileName);
    return document->save(fileName, &messages) && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray firstDifference(const QByteArray &before, const QByteArray &after)
{
    const QList<QByteArray> were = before.split('\n');
    const QList<QByteArray> are = after.split('\n');
    const auto at = std::mismatch(were.begin(), were.end(), are.begin(), are.end());
    const auto line = [](const QList<QByteArray> &lines, auto place) {
        return place == lines.end() ? QByteArray() : place->trimmed().left(120);
    };
    return line(were, at.first) + " -> " + line(are, at.second);
}

void exercise(const QString &fileName, Counts *counts)
{
    const CoinMessages missingFiles; // a texture's new name finds none
    const QTemporaryDir directory;
    SceneDocument document;
    QStringList messages;
    if (!document.open(fileName, &messages))
        return;
    const QByteArray before = saved(&document, directory.filePath("before"));
    ++counts->files;
    {
        FieldPanel panel(document.undoStack());
        panel.resize(500, 600);
        panel.show();
        std::set<SoNode *> seen;
        std::vector<std::shared_ptr<SoNode>> nodes;
        QRandomGenerator random(7);
        collect(document.root(), &seen, &nodes);
        for (const std::shared_ptr<SoNode> &node : nodes) {
            ++counts->nodes;
            panel.setNode(node.get());
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // no event loop runs that would
            const auto frames = panel.findChildren<QFrame *>();
            for (QFrame *const frame : frames) {
                auto *const editor = dynamic_cast<HbFieldEditors *>(frame);
                if (!editor)
                    continue;
                ++counts->fields;
                auto &fieldsAndEdits = counts->byEditor[frame->objectName()];
                play(editor, random);
                panel.finish();
                const int steps = document.undoStack()->count();
                counts->edits += steps > 0 ? 1 : 0;
                ++fieldsAndEdits.first;
                fieldsAndEdits.second += steps > 0 ? 1 : 0;
                document.undoStack()->setIndex(0);
                document.undoStack()->clear();
                qApp->processEvents();
            }
        }
    }
    const QByteArray after = saved(&document, directory.filePath("after"));
    if (after == before)
        return;
    ++counts->faults;
    QTextStream(stderr) << fileName << " is saved otherwise than before: " << firstDifference(before, after) << '\n';
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Complaints::listen();
    SoInteraction::init();
    Counts counts;
    int dialogs = 0;
    QTimer closing; // whatever dialog opens
    QObject::connect(&closing, &QTimer::timeout, [&dialogs] {
        if (auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->done(++dialogs % 2);
    });
    closing.start(1);
    const QStringList files = application.arguments().mid(1);
    for (const QString &file : files) {
        exercise(file, &counts);
        const QByteArray complaints = Complaints::take();
        if (complaints.isEmpty())
            continue;
        ++counts.faults;
        QTextStream(stderr) << file << ": " << complaints << '\n';
    }
    QTextStream(stdout) << counts.files << " scenes, " << counts.nodes << " nodes, " << counts.fields << " fields, "
                        << counts.edits << " edits taken back, " << counts.faults << " faults\n";
    for (auto editor = counts.byEditor.cbegin(); editor != counts.byEditor.cend(); ++editor) {
        const auto [fields, edits] = editor.value();
        QTextStream(stdout) << "  " << editor.key() << ' ' << fields << ' ' << edits << '\n';
        counts.faults += fields > 20 && edits == 0 && !editor.key().isEmpty() ? 1 : 0; // its edits end in nothing
    }
    return counts.faults == 0 && counts.edits > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
