// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FILESTATE_H
#define FILESTATE_H

#include <QString>

#include <sys/stat.h>

/// What the file system knows of a file, links followed.
class FileState
{
public:
    /// Of no file.
    FileState() = default;
    explicit FileState(const QString &fileName);

    bool exists() const { return m_exists; }
    /// Neither a directory nor something whose reading may never end: a pipe, a socket, a device.
    bool isRegular() const { return m_exists && S_ISREG(m_stat.st_mode); }
    /// By how many names the file is known.
    int nameCount() const { return m_exists ? static_cast<int>(m_stat.st_nlink) : 0; }
    bool isSameFile(const FileState &other) const;
    /// Whether nobody has written the file, or put another in its place, in between.
    bool isUntouchedSince(const FileState &earlier) const;

    /// Gives owner, group and mode to an open file, as far as this user may.
    void giveTo(int descriptor) const;

private:
    struct stat m_stat = {};
    bool m_exists = false; ///< known once m_stat was filled
};

/// Puts a copy beside a file, "scene.iv.orig", or "scene.iv.orig.1" where another content has that name.
struct FileBackup {
    QString fileName; ///< where the content stands, or would stand
    bool isThere = false; ///< the same content stands there already

    static FileBackup of(const QString &fileName);
    /// Whether an earlier state of the file is kept, whichever.
    static bool anyOf(const QString &fileName);
    bool keep(const QString &fileName, QString *problem) const;
};

#endif
