// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEGUARD_H
#define SCENEGUARD_H

#include <QString>

/// Why Coin's reader would not survive a file, in one sentence; empty where it would. Looks into packed files; binary
/// ones are not looked into.
QString whyUnsafe(const QString &fileName);

#endif
