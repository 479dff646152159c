// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneFile.h"

#include "CoinMessages.h"
#include "CoinRef.h"
#include "SceneOutput.h"
#include "ScenePath.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/actions/SoWriteAction.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace
{
constexpr int mostLevels = 4000;

QString tr(const char *text)
{
    return QCoreApplication::translate("SceneFile", text);
}

/// Coin reads level by level on the stack, and would end the process. Binary and packed files are not looked into.
bool isNestedTooDeeply(QIODevice &file)
{
    const QByteArray header = file.peek(32);
    if (!header.contains("ascii") && !header.contains("utf8"))
        return false;
    int level = 0;
    while (!file.atEnd()) {
        const QByteArray block = file.read(1 << 16);
        for (const char character : block) {
            level += character == '{' ? 1 : character == '}' ? -1 : 0;
            if (level > mostLevels)
                return true;
        }
    }
    return false;
}

QString whyUnreadable(const QString &fileName, QByteArray *start)
{
    const QString name = QDir::toNativeSeparators(fileName);
    if (QFileInfo(fileName).isDir())
        return tr("%1 is a directory").arg(name);
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return tr("%1: %2").arg(name, file.errorString());
    *start = file.peek(2);
    if (start->isEmpty())
        return tr("%1 is empty").arg(name);
    return isNestedTooDeeply(file) ? tr("%1 has more than %2 levels").arg(name).arg(mostLevels) : QString();
}

bool readTopLevelNodes(SoInput *input, SoGroup *root)
{
    for (;;) {
        SoNode *node = nullptr;
        if (!SoDB::read(input, node))
            return false;
        if (!node)
            return true;
        root->addChild(node);
    }
}

SceneFormat formatOf(SoInput &input, const QByteArray &start)
{
    SceneFormat format;
    format.binary = input.isBinary();
    format.gzip = start == QByteArray("\x1f\x8b");
    if (input.isFileVRML1() || input.isFileVRML2())
        format.header = input.getHeader().getString();
    return format;
}

} // namespace

SceneDirectory::SceneDirectory(const QString &sceneFileName)
    : m_path(QFile::encodeName(QFileInfo(sceneFileName).absolutePath()))
{
    SoInput::addDirectoryFirst(m_path.constData());
}

SceneDirectory::~SceneDirectory()
{
    SoInput::removeDirectory(m_path.constData());
}

void SceneRoot::write(SoWriteAction *action)
{
    for (int i = 0; i < getNumChildren(); ++i)
        getChild(i)->write(action);
}

SceneFile readScene(const QString &fileName)
{
    SceneFile file;
    QByteArray start;
    const QString path = QFileInfo(fileName).absoluteFilePath();
    const QString problem = whyUnreadable(path, &start);
    if (!problem.isEmpty()) {
        file.messages = QStringList{problem};
        return file;
    }

    const CoinMessages coin;
    file.directory = std::make_shared<SceneDirectory>(path);
    SoInput input;
    const std::shared_ptr<SoSeparator> root = coinRef<SoSeparator>(new SceneRoot);
    const bool opened = input.openFile(QFile::encodeName(path).constData());
    const bool valid = opened && input.isValidFile();
    const bool read = valid && readTopLevelNodes(&input, root.get());
    if (read && containsItself(root.get())) {
        file.messages = QStringList{tr("%1: a node of the scene contains itself").arg(path)};
        root->removeAllChildren();
        return file;
    }
    if (read) {
        file.root = root;
        file.format = formatOf(input, start);
    }
    file.messages = coin.texts();
    if (!file.root && file.messages.isEmpty())
        file.messages.append(valid ? tr("%1 could not be read").arg(path)
                                   : tr("%1 is no Inventor or VRML file").arg(path));
    return file;
}

bool writeScene(SoNode *root, const SceneFormat &format, const QString &fileName, QStringList *messages)
{
    const CoinMessages coin;
    SceneOutput output(format);
    SoWriteAction(&output).apply(root);
    const QByteArray content = output.content();
    messages->append(coin.texts());
    if (output.hasUnreadableNumbers())
        messages->append(tr("Infinite values were saved as the largest number, values that are no number as 0."));

    QSaveFile file(fileName);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
        return true;
    messages->append(tr("%1 could not be saved: %2").arg(QDir::toNativeSeparators(fileName), file.errorString()));
    return false;
}
