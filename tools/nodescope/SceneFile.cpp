// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneFile.h"

#include "CoinMessages.h"
#include "CoinRef.h"
#include "Containment.h"
#include "FileState.h"
#include "SceneGuard.h"
#include "SceneInput.h"
#include "SceneOutput.h"
#include "SourceText.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/errors/SoReadError.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>

#include <cerrno>
#include <cstring>
#include <new>

namespace
{
QString tr(const char *text)
{
    return QCoreApplication::translate("SceneFile", text);
}

/// Coin takes what begins no node for the end.
void tellOfTheRest(SoInput *input)
{
    if (!input->eof())
        SoReadError::post(input, "%s", tr("no node begins here; the rest is not read, nor saved").toUtf8().constData());
}

bool readTopLevelNodes(SoInput *input, SoGroup *root)
try {
    for (;;) {
        SoNode *node = nullptr;
        if (!SoDB::read(input, node))
            return false;
        if (!node) {
            tellOfTheRest(input);
            return true;
        }
        root->addChild(node);
    }
} catch (const std::bad_alloc &) { // of an image, say, whose size is told before its pixels
    SoReadError::post(input, "%s", tr("the memory is too small for it").toUtf8().constData());
    return false;
}

bool isPacked(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) && file.read(2) == "\x1f\x8b";
}

SceneFormat formatOf(SoInput &input, const QString &fileName)
{
    SceneFormat format;
    format.binary = input.isBinary();
    format.gzip = isPacked(fileName);
    if (input.isFileVRML1() || input.isFileVRML2())
        format.header = input.getHeader().getString();
    return format;
}

QByteArray contentOf(SoNode *root, const SceneFormat &format, bool *hasUnreadableNumbers)
{
    SceneOutput output(format);
    SoWriteAction(&output).apply(root);
    *hasUnreadableNumbers = output.hasUnreadableNumbers();
    return output.content();
}

/// Returns what went wrong.
QString replaceFile(const QString &fileName, const QByteArray &content)
{
    const FileState before(fileName);
    if (before.exists() && !before.isRegular())
        return tr("it is no regular file, and is not replaced by one");
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    before.giveTo(file.handle());
    errno = 0;
    if (file.write(content) == content.size() && file.flush() && file.commit())
        return {};
    return errno != 0 ? QString::fromLocal8Bit(std::strerror(errno)) : file.errorString();
}

/// What drives a field may stand nowhere in the scene: whether it is written is known once it was.
SaveLosses lossesOf(const QString &fileName, SoNode *root, SceneFormat format)
{
    const CoinMessages unheard;
    const SourceText source = SourceText::ofFile(fileName);
    SourceText written;
    if (source.connections() > 0) {
        bool hasUnreadableNumbers = false;
        format.gzip = false;
        written = SourceText::of(contentOf(root, format, &hasUnreadableNumbers));
    }
    return SaveLosses::between(source, written);
}

SceneFile readRegularFile(const QString &fileName, const ReadingProgress &progress)
{
    SceneFile file;
    const QString problem = whyUnreadable(fileName);
    if (!problem.isEmpty()) {
        file.messages = QStringList{problem};
        return file;
    }

    const CoinMessages coin;
    const qint64 size = isPacked(fileName) ? 0 : QFileInfo(fileName).size();
    SceneInput input(size, progress);
    const std::shared_ptr<SoSeparator> root = coinRef<SoSeparator>(new SceneRoot);
    const bool opened = input.openFile(QFile::encodeName(fileName).constData());
    const bool valid = opened && input.isValidFile();
    const bool read = valid && readTopLevelNodes(&input, root.get());
    if (read && containsItself(root.get())) {
        file.messages = QStringList{tr("%1: a node of the scene contains itself").arg(fileName)};
        root->removeAllChildren();
        return file;
    }
    if (read) {
        file.root = root;
        file.format = formatOf(input, fileName);
        file.losses = lossesOf(fileName, root.get(), file.format);
    }
    file.messages = coin.texts();
    if (!file.root && file.messages.isEmpty())
        file.messages.append(valid ? tr("%1 could not be read").arg(fileName)
                                   : tr("%1 is no Inventor or VRML file").arg(fileName));
    return file;
}

/// By way of a file, which can be looked into before Coin reads it.
SceneFile readStandardInput(const ReadingProgress &progress)
{
    const QString name = tr("Standard input");
    SceneFile file;
    QFile input;
    QTemporaryFile copy;
    if (!input.open(stdin, QIODevice::ReadOnly) || !copy.open()) {
        file.messages = QStringList{tr("%1: %2").arg(name, copy.errorString())};
        return file;
    }
    const QByteArray content = input.readAll();
    if (copy.write(content) != content.size() || !copy.flush()) {
        file.messages = QStringList{tr("%1: %2").arg(name, copy.errorString())};
        return file;
    }
    file = readRegularFile(copy.fileName(), progress);
    file.messages.replaceInStrings(copy.fileName(), name);
    return file;
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

SceneFile readScene(const QString &fileName, const ReadingProgress &progress)
{
    const bool isPiped = fileName == standardInput;
    const QString path = isPiped ? QDir::current().filePath(fileName) : QFileInfo(fileName).absoluteFilePath();
    const auto directory = std::make_shared<SceneDirectory>(path);
    SceneFile file = isPiped ? readStandardInput(progress) : readRegularFile(path, progress);
    file.directory = directory;
    return file;
}

bool writeScene(SoNode *root, const SceneFormat &format, const QString &fileName, QStringList *messages)
{
    const CoinMessages coin;
    bool hasUnreadableNumbers = false;
    const QByteArray content = contentOf(root, format, &hasUnreadableNumbers);
    messages->append(coin.texts());
    if (hasUnreadableNumbers)
        messages->append(tr("Infinite values were saved as the largest number, values that are no number as 0."));
    const QString problem = replaceFile(fileName, content);
    if (problem.isEmpty())
        return true;
    messages->append(tr("%1 could not be saved: %2").arg(QDir::toNativeSeparators(fileName), problem));
    return false;
}
