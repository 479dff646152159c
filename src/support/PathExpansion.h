// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef PATHEXPANSION_H
#define PATHEXPANSION_H

#include <QByteArray>

/// File paths as bytes, which is what the system takes them for.
namespace PathExpansion
{
/// Puts the environment's values in the place of $NAME and ${NAME}, once. Empty where one of them is unset or empty:
/// what is left would be another place.
QByteArray expand(const QByteArray &path);

/// What follows the last slash.
QByteArray baseName(const QByteArray &path);
} // namespace PathExpansion

#endif
