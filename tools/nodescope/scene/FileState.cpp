// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileState.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

namespace
{

const QLatin1String suffix(".orig");

bool isSameTime(const timespec &first, const timespec &second)
{
    return first.tv_sec == second.tv_sec && first.tv_nsec == second.tv_nsec;
}

bool haveSameContent(const QString &first, const QString &second)
{
    QFile one(first);
    QFile other(second);
    if (!one.open(QIODevice::ReadOnly) || !other.open(QIODevice::ReadOnly) || one.size() != other.size())
        return false;
    constexpr qint64 blockSize = 1 << 16;
    while (!one.atEnd()) {
        if (one.read(blockSize) != other.read(blockSize))
            return false;
    }
    return true;
}

} // namespace

FileState::FileState(const QString &fileName)
    : m_exists(stat(QFile::encodeName(fileName).constData(), &m_stat) == 0) { }

bool FileState::isSameFile(const FileState &other) const
{
    return m_exists && other.m_exists && m_stat.st_dev == other.m_stat.st_dev && m_stat.st_ino == other.m_stat.st_ino;
}

bool FileState::isUntouchedSince(const FileState &earlier) const
{
    return isSameFile(earlier) && m_stat.st_size == earlier.m_stat.st_size
        && isSameTime(m_stat.st_mtim, earlier.m_stat.st_mtim);
}

void FileState::giveTo(int descriptor) const
{
    if (!isRegular())
        return;
    // The owner first: a change of owner takes special bits from the mode, and these are not for another owner.
    const bool isOwned = fchown(descriptor, m_stat.st_uid, m_stat.st_gid) == 0;
    const bool isOfGroup = isOwned || fchown(descriptor, static_cast<uid_t>(-1), m_stat.st_gid) == 0;
    const mode_t kept = isOwned ? 07777 : isOfGroup ? 0777 : 0707;
    [[maybe_unused]] const int done = fchmod(descriptor, m_stat.st_mode & kept);
}

bool FileBackup::anyOf(const QString &fileName)
{
    return QFileInfo::exists(fileName + suffix);
}

FileBackup FileBackup::of(const QString &fileName)
{
    const QString plain = fileName + suffix;
    FileBackup backup;
    backup.fileName = plain;
    for (int number = 1;; ++number) {
        backup.isThere = haveSameContent(fileName, backup.fileName);
        if (backup.isThere || !(QFileInfo::exists(backup.fileName) || QFileInfo(backup.fileName).isSymLink()))
            return backup;
        backup.fileName = QStringLiteral("%1.%2").arg(plain).arg(number);
    }
}

bool FileBackup::keep(const QString &original, QString *problem) const
{
    if (isThere)
        return true;
    QFile file(original);
    if (file.copy(fileName)) // overwrites nothing
        return true;
    *problem = QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(fileName), file.errorString());
    return false;
}
