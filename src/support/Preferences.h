// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef PREFERENCES_H
#define PREFERENCES_H

#include <QByteArray>
#include <QString>

/// What the user sets by an environment variable or, where that is unset or empty, in the preferences file.
namespace Preferences
{
enum class Origin { Default, Environment, File };

/// What a look-up found, and where.
template <class Value> struct Found {
    Value value;
    Origin origin;
};

/// The preferences file, whether or not it is there: an INI file in the user's configuration directory.
QString fileName();

/// Read anew at each call. The bytes are those of the environment, or of the file's text as a file name has them.
Found<QByteArray> text(const char *key, const QByteArray &fallback);

/// 1, true, yes, on and 0, false, no, off in any case; anything else counts as not set.
Found<bool> boolean(const char *key, bool fallback);
} // namespace Preferences

#endif
