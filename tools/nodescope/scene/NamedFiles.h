// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef NAMEDFILES_H
#define NAMEDFILES_H

/// From now on a file that a File or Inline node names is looked into before it is read, as a scene is, and is not read
/// from within itself, which would have no end. To Coin, and in files, the nodes stay what they are.
void guardNamedFiles();

#endif
