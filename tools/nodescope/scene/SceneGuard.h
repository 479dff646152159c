// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEGUARD_H
#define SCENEGUARD_H

#include <QString>

/// Why a file cannot be given to Coin's reader, or the reader would not survive it, in one sentence; empty where it
/// can. Looks into packed files; binary ones are not looked into.
QString whyUnreadable(const QString &fileName);

#endif
