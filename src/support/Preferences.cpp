// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Preferences.h"

#include "QtCompat.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

namespace
{
QByteArray textInFile(const char *key)
{
    QSettings file(Preferences::fileName(), QSettings::IniFormat);
    QtCompat::readIniAsUtf8(file);
    // what stands unquoted between commas comes as a list
    return QFile::encodeName(file.value(QLatin1String(key)).toStringList().join(QLatin1Char(',')));
}
} // namespace

QString Preferences::fileName()
{
    const QDir directory(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    return QDir::cleanPath(directory.filePath(QStringLiteral("nodescope/preferences.ini")));
}

Preferences::Found<QByteArray> Preferences::text(const char *key, const QByteArray &fallback)
{
    if (const QByteArray value = qgetenv(key); !value.isEmpty())
        return {value, Origin::Environment};
    if (const QByteArray value = textInFile(key); !value.isEmpty())
        return {value, Origin::File};
    return {fallback, Origin::Default};
}

Preferences::Found<bool> Preferences::boolean(const char *key, bool fallback)
{
    const Found<QByteArray> found = text(key, {});
    const QByteArray word = found.value.trimmed().toLower();
    for (const char *const yes : {"1", "true", "yes", "on"})
        if (word == yes)
            return {true, found.origin};
    for (const char *const no : {"0", "false", "no", "off"})
        if (word == no)
            return {false, found.origin};
    return {fallback, Origin::Default};
}
