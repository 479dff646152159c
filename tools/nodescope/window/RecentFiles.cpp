// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <iterator>

namespace
{
constexpr int mostFiles = 10;
const QLatin1String key("recentFiles");
} // namespace

void RecentFiles::remember()
{
    m_remembers = true;
    m_files = QSettings().value(key).toStringList();
    Q_EMIT changed();
}

void RecentFiles::add(const QString &fileName)
{
    // Another window of the tool may have written the list meanwhile.
    QStringList files = m_remembers ? QSettings().value(key).toStringList() : m_files;
    const QString path = QFileInfo(fileName).absoluteFilePath();
    files.removeAll(path);
    files.prepend(path);
    set(files.mid(0, mostFiles));
}

void RecentFiles::clear()
{
    set({});
}

QStringList RecentFiles::files() const
{
    QStringList there;
    std::copy_if(m_files.begin(), m_files.end(), std::back_inserter(there),
                 [](const QString &file) { return QFileInfo(file).isFile(); });
    return there;
}

void RecentFiles::set(const QStringList &files)
{
    m_files = files;
    if (m_remembers)
        QSettings().setValue(key, files);
    Q_EMIT changed();
}
