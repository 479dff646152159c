// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneGuard.h"

#include "FileState.h"

#include "coin/ReaderGuard.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <memory>

#include <zlib.h>

namespace
{
QString sentence(ReaderGuard::Danger danger)
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("SceneGuard", text); };
    switch (danger) {
    case ReaderGuard::Danger::LongNumber:
        return tr("%1 has a number of more than %2 characters")
            .arg(QStringLiteral("%1"))
            .arg(ReaderGuard::longestNumber);
    case ReaderGuard::Danger::LongWord:
        return tr("%1 has a word of more than %2 characters").arg(QStringLiteral("%1")).arg(ReaderGuard::longestWord);
    case ReaderGuard::Danger::DeepNesting:
        return tr("%1 has more than %2 levels").arg(QStringLiteral("%1")).arg(ReaderGuard::mostLevels);
    case ReaderGuard::Danger::None:
        break;
    }
    return {};
}

QString whyUnsafe(const QString &fileName)
{
    // a file that is not packed is read as it is
    const std::unique_ptr<gzFile_s, int (*)(gzFile)> file(gzopen(QFile::encodeName(fileName).constData(), "rb"),
                                                          gzclose);
    if (!file)
        return {};
    std::array<char, 1 << 16> block;
    int length = gzread(file.get(), block.data(), block.size());
    const QByteArray header = QByteArray::fromRawData(block.data(), std::max(length, 0)).left(64).split('\n').first();
    const bool isVrml2 = header.startsWith("#VRML V2");
    if (!isVrml2 && !header.contains("ascii"))
        return {};
    ReaderGuard guard(isVrml2 ? ReaderGuard::Notation::Vrml2 : ReaderGuard::Notation::Inventor);
    ReaderGuard::Danger danger = ReaderGuard::Danger::None;
    for (; length > 0 && danger == ReaderGuard::Danger::None; length = gzread(file.get(), block.data(), block.size()))
        danger = guard.feed(block.data(), length);
    return danger == ReaderGuard::Danger::None ? QString() : sentence(danger).arg(QDir::toNativeSeparators(fileName));
}
} // namespace

QString whyUnreadable(const QString &fileName)
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("SceneGuard", text); };
    const QString name = QDir::toNativeSeparators(fileName);
    if (QFileInfo(fileName).isDir())
        return tr("%1 is a directory").arg(name);
    const FileState state(fileName);
    if (state.exists() && !state.isRegular()) // whose end may never come
        return tr("%1 is a pipe or a device; what comes through a pipe is opened as standard input, named \"-\"")
            .arg(name);
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return tr("%1: %2").arg(name, file.errorString());
    return file.peek(1).isEmpty() ? tr("%1 is empty").arg(name) : whyUnsafe(fileName);
}
