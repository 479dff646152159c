// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef RECENTFILES_H
#define RECENTFILES_H

#include <QObject>
#include <QStringList>

/// The scenes that were opened or saved last, the newest first; kept from run to run where asked to.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Takes the list of the last run and keeps it for the next.
    void remember();
    void add(const QString &fileName);
    void clear();
    /// Those that are there.
    QStringList files() const;

Q_SIGNALS:
    void changed();

private:
    void set(const QStringList &files);

    QStringList m_files;
    bool m_remembers = false;
};

#endif
