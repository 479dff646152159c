// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

// The tool on real scenes in the hands of somebody who selects, edits, undoes, pastes, opens and saves at random.
// Whatever was done, undoing all of it gives the scene as it was, bit by bit, and redoing all of it what it had become.

#include "Hands.h"
#include "Monkey.h"
#include "TestSupport.h"

#include "tools/nodescope/CoinSetup.h"
#include "tools/nodescope/FieldPanel.h"
#include "tools/nodescope/MainWindow.h"
#include "tools/nodescope/SceneDocument.h"
#include "tools/nodescope/SceneOutput.h"
#include "tools/nodescope/SceneTree.h"

#include <QClipboard>
#include <QMessageBox>
#include <QTemporaryDir>

#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/nodes/SoSeparator.h>

namespace
{
QStringList scenes;

class ToolWorld : public MonkeyWorld
{
public:
    explicit ToolWorld(quint32 seed) : m_random(seed)
    {
        Complaints::take();
        m_window.resize(1000, 700);
        m_window.show();
        QApplication::setActiveWindow(&m_window);
        open(m_random);
    }

    QString step(QRandomGenerator &random) override
    {
        static const std::pair<int, QString (ToolWorld::*)(QRandomGenerator &)> deeds[]
            = {{24, &ToolWorld::play}, {6, &ToolWorld::select}, {4, &ToolWorld::undo}, {3, &ToolWorld::redo},
               {2, &ToolWorld::paste}, {1, &ToolWorld::save},   {1, &ToolWorld::open}};
        int choice = random.bounded(41);
        QString done;
        for (const auto &[weight, deed] : deeds) {
            choice -= weight;
            if (choice < 0) {
                done = (this->*deed)(random);
                break;
            }
        }
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return done;
    }

    QString fault() override { return QString::fromUtf8(Complaints::take()); }

    QString lastFault() override
    {
        QUndoStack &stack = *m_window.document()->undoStack();
        const QByteArray changed = written();
        const int place = stack.index();
        while (stack.canUndo())
            stack.undo();
        if (written() != m_original)
            return QStringLiteral("undone, %1 is another scene").arg(m_file);
        while (stack.index() < place)
            stack.redo();
        return written() == changed ? fault() : QStringLiteral("redone, %1 is another scene").arg(m_file);
    }

private:
    /// As bits, which text does not keep.
    QByteArray written()
    {
        m_window.panel()->finish();
        SceneFormat format;
        format.binary = true;
        SceneOutput output{format};
        SoWriteAction(&output).apply(m_window.document()->root());
        return output.content();
    }

    QString play(QRandomGenerator &random) { return Hands(m_window.panel(), random).doAnything(); }

    QString select(QRandomGenerator &random)
    {
        ScenePath path;
        for (const SoNode *node = m_window.document()->root(); path.size() < 12;) {
            const std::vector<SoNode *> children = childrenOf(node);
            if (children.empty() || (!path.isEmpty() && random.bounded(4) == 0))
                break;
            path.append(random.bounded(int(children.size())));
            node = children[size_t(path.last())];
        }
        m_window.tree()->select(path);
        return QStringLiteral("selects ") + pathText(m_window.document()->root(), path);
    }

    QString undo(QRandomGenerator &random)
    {
        for (int i = random.bounded(4); i >= 0; --i)
            m_window.document()->undoStack()->undo();
        return QStringLiteral("undoes");
    }

    QString redo(QRandomGenerator &random)
    {
        for (int i = random.bounded(4); i >= 0; --i)
            m_window.document()->undoStack()->redo();
        return QStringLiteral("redoes");
    }

    QString paste(QRandomGenerator &random)
    {
        const QString text = Hands::someText(random) + QLatin1String(random.bounded(2) ? "\t1\n2\t3" : "");
        QGuiApplication::clipboard()->setText(text);
        if (QWidget *const focused = QApplication::focusWidget(); focused && m_window.panel()->isAncestorOf(focused))
            QTest::keyClick(focused, Qt::Key_V, Qt::ControlModifier);
        return QStringLiteral("pastes ") + text;
    }

    QString save(QRandomGenerator &)
    {
        QStringList messages;
        m_window.panel()->finish();
        m_window.document()->save(m_file, &messages);
        return QStringLiteral("saves");
    }

    QString open(QRandomGenerator &random)
    {
        const QString source = scenes[random.bounded(int(scenes.size()))];
        m_file = m_directory.filePath(QFileInfo(source).fileName());
        QFile::remove(m_file);
        QFile::copy(source, m_file);
        QFile::setPermissions(m_file, QFile::ReadOwner | QFile::WriteOwner);
        if (!m_window.open(m_file))
            return QStringLiteral("does not open %1: %2").arg(source, m_window.messages().join(QLatin1Char(' ')));
        m_original = written();
        return QStringLiteral("opens ") + source;
    }

    QRandomGenerator m_random;
    QTemporaryDir m_directory;
    MainWindow m_window;
    QString m_file;
    QByteArray m_original;
};
} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    setUpCoin(false);
    Complaints::listen();
    QDirIterator files(QStringLiteral(HARBOR_SOURCE_DIR "/examples/scenes"), {"*.iv"});
    while (files.hasNext())
        scenes << files.next();
    QDirIterator models(QStringLiteral("/usr/share/inventor/data/models"), {"*.iv"}, QDir::Files,
                        QDirIterator::Subdirectories);
    while (models.hasNext())
        scenes << models.next();
    scenes.sort();
    int count = 0;
    QTimer closing; // whatever dialog opens: nothing is kept, and something is chosen now and then
    QObject::connect(&closing, &QTimer::timeout, [&count] {
        QWidget *const modal = QApplication::activeModalWidget();
        if (auto *const question = qobject_cast<QMessageBox *>(modal)) {
            if (QAbstractButton *const discard = question->button(QMessageBox::Discard))
                discard->click();
            else
                question->reject();
        } else if (auto *const dialog = qobject_cast<QDialog *>(modal)) {
            dialog->done(++count % 2);
        }
    });
    closing.start(1);
    return runMonkey(QCoreApplication::arguments(),
                     {40, 60, [](quint32 seed) { return std::make_unique<ToolWorld>(seed); }});
}
