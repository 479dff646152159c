// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef COINSETUP_H
#define COINSETUP_H

/**
 * Starts Coin; to be called once, before anything else of it is used.
 *
 * A scene file is data: unless @p allowNodeLibraries is set, Coin does not look for a shared library named
 * after a node type that it does not know, which would run that library's code. Scripts in VRML files are
 * never run.
 */
void setUpCoin(bool allowNodeLibraries);

#endif
