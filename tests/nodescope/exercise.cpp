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

#include <HbMFieldTable.h>
#include <HbPopupWidget.h>
#include <HbSFRotationWidget.h>
#include <HbTablePopupLineEdit.h>
#include <HbTablePopupWidget.h>

#include <QMap>
#include <QUndoStack>

#include <Inventor/SoInteraction.h>
#include <Inventor/nodes/SoNode.h>
#include <Inventor/nodes/SoSeparator.h>

#include <algorithm>
#include <set>

namespace
{
struct Counts {
    int files = 0;
    int nodes = 0;
    int fields = 0;
    int edits = 0;
    int faults = 0;
    QMap<QString, int> editsByEditor;
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
    static const QRegularExpression hexadecimal(QStringLiteral("^[0-9a-f]+$"));
    const QRegularExpressionMatch found = number.match(text);
    QString other = text;
    if (text.endsWith(QLatin1Char('"')))
        return other.insert(text.size() - 1, QLatin1Char('x'));
    if (found.hasMatch())
        return other.replace(found.capturedStart(), found.capturedLength(), found.captured() == "3" ? "2" : "3");
    return hexadecimal.match(text).hasMatch() ? QStringLiteral("3") : text + QLatin1Char('x');
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

/// Several boxes may stand for the same bits: those that are on go off.
void clickAll(const QList<QCheckBox *> &boxes)
{
    const bool any = std::any_of(boxes.begin(), boxes.end(), [](const QCheckBox *box) { return box->isChecked(); });
    for (QCheckBox *const box : boxes)
        if (box->isChecked() == any)
            box->click();
}

/// Adds a row, edits a cell of it, moves it up and removes another.
void changeTable(HbFieldEditors *editor, HbMFieldTable *table)
{
    table->setCurrentCell(table->rowCount() - 1, 0);
    editor->findChild<QPushButton *>("m_addButton")->click();
    table->setCurrentCell(table->rowCount() - 1, table->columnCount() - 1);
    if (dynamic_cast<HbTablePopupWidget *>(editor)) {
        editor->findChild<QPushButton *>("m_editButton")->click();
        type(editor->findChild<HbTablePopupLineEdit *>());
        editor->findChild<QPushButton *>("m_editButton")->click();
    } else {
        QTest::keyClick(table, Qt::Key_F2);
        if (auto *const cell = table->viewport()->findChild<QLineEdit *>())
            type(cell);
        qApp->processEvents(); // Qt closes the editor then
    }
    editor->findChild<QPushButton *>("m_upButton")->click();
    editor->findChild<QPushButton *>("m_deleteButton")->click();
}

/// Changes the value by the editor's own controls; false where it has none.
bool change(HbFieldEditors *editor)
{
    if (dynamic_cast<HbPopupWidget *>(editor)) {
        editor->findChild<QPushButton *>("m_editButton")->click();
        type(editor->findChild<QLineEdit *>("popupEdit_1_2"));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    } else if (auto *const table = editor->findChild<HbMFieldTable *>()) {
        changeTable(editor, table);
    } else if (dynamic_cast<HbSFRotationWidget *>(editor)) {
        const auto edits = editor->findChildren<QLineEdit *>();
        retype(edits[0], edits[0]->text() == "1" ? "2" : "1"); // an axis, as the angle may be 0 and the axis too
        retype(edits[1], "1");
        enter(edits[3], altered(edits[3]->text()));
    } else if (auto *const choice = editor->findChild<QComboBox *>()) {
        QTest::keyClick(choice, choice->currentIndex() > 0 ? Qt::Key_Up : Qt::Key_Down);
    } else if (auto *const spin = editor->findChild<QSpinBox *>()) {
        QTest::keyClick(spin, Qt::Key_Up);
    } else if (auto *const edit = editor->findChild<QLineEdit *>()) {
        if (edit->isReadOnly())
            return false;
        type(edit);
    } else {
        const auto boxes = editor->findChildren<QCheckBox *>();
        clickAll(boxes);
        return !boxes.isEmpty();
    }
    return true;
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
                const bool isEditable = change(editor);
                const int steps = document.undoStack()->count();
                counts->edits += steps > 0 ? 1 : 0;
                if (isEditable)
                    counts->editsByEditor[frame->objectName()] += steps > 0 ? 1 : 0;
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
    for (auto editor = counts.editsByEditor.cbegin(); editor != counts.editsByEditor.cend(); ++editor) {
        QTextStream(stdout) << "  " << editor.key() << ' ' << editor.value() << '\n';
        counts.faults += editor.value() == 0 ? 1 : 0; // its edit ends in nothing
    }
    return counts.faults == 0 && counts.edits > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
