// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

// Opens scenes, selects each node in turn, edits each of its fields by keyboard and mouse and takes the edit back.
// Fails where a scene is then saved otherwise than before, or where anything complains.

#include "TestSupport.h"

#include "tools/nodescope/CoinMessages.h"
#include "tools/nodescope/CoinRef.h"
#include "tools/nodescope/FieldPanel.h"
#include "tools/nodescope/SceneDocument.h"
#include "tools/nodescope/ScenePath.h"

#include <HbFieldEditors.h>
#include <HbPopupWidget.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTextStream>
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
};

void collect(SoNode *node, std::set<SoNode *> *seen, std::vector<std::shared_ptr<SoNode>> *nodes)
{
    if (!seen->insert(node).second)
        return;
    nodes->push_back(coinRef(node)); // one that reads a file may drop its children meanwhile
    for (SoNode *const child : childrenOf(node))
        collect(child, seen, nodes);
}

/// Another value in the same notation.
QString altered(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("-?[0-9][0-9.eE+-]*"));
    QString other = text;
    if (number.match(text).hasMatch())
        return other.replace(number.match(text).capturedStart(), number.match(text).capturedLength(),
                             text.startsWith(QLatin1Char('3')) ? QStringLiteral("2") : QStringLiteral("3"));
    return text == QLatin1String("\"\"") ? QStringLiteral("\"x\"") : text + QLatin1Char('x');
}

void type(QLineEdit *edit)
{
    constexpr int tooLongToType = 200;
    const QString text = altered(edit->text());
    if (text.size() < tooLongToType) {
        retype(edit, text);
    } else {
        edit->selectAll();
        edit->insert(text); // as from the clipboard
    }
    QTest::keyClick(edit, Qt::Key_Return);
}

void change(HbFieldEditors *editor)
{
    if (dynamic_cast<HbPopupWidget *>(editor)) {
        editor->findChild<QPushButton *>("m_editButton")->click();
        type(editor->findChild<QLineEdit *>("popupEdit_1_2"));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    } else if (auto *const choice = editor->findChild<QComboBox *>()) {
        QTest::keyClick(choice, choice->currentIndex() > 0 ? Qt::Key_Up : Qt::Key_Down);
    } else if (auto *const spin = editor->findChild<QSpinBox *>()) {
        QTest::keyClick(spin, Qt::Key_Up);
    } else if (auto *const edit = editor->findChild<QLineEdit *>()) {
        if (!edit->isReadOnly())
            type(edit);
    } else if (auto *const box = editor->findChild<QCheckBox *>()) {
        box->click();
    }
}

QByteArray saved(SceneDocument *document, const QString &fileName)
{
    QStringList messages;
    QFile file(fileName);
    return document->save(fileName, &messages) && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
        collect(document.root(), &seen, &nodes);
        for (const std::shared_ptr<SoNode> &node : nodes) {
            ++counts->nodes;
            panel.setNode(node.get());
            const auto frames = panel.findChildren<QFrame *>();
            for (QFrame *const frame : frames) {
                auto *const editor = dynamic_cast<HbFieldEditors *>(frame);
                if (!editor)
                    continue;
                ++counts->fields;
                change(editor);
                counts->edits += document.undoStack()->count();
                document.undoStack()->setIndex(0);
                document.undoStack()->clear();
                qApp->processEvents();
            }
        }
    }
    if (saved(&document, directory.filePath("after")) == before)
        return;
    ++counts->faults;
    QTextStream(stderr) << fileName << " is saved otherwise than before\n";
}
} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    Complaints::listen();
    SoInteraction::init();
    Counts counts;
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
    return counts.faults == 0 && counts.edits > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
