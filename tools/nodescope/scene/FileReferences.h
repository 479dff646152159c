// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FILEREFERENCES_H
#define FILEREFERENCES_H

#include <QStringList>

class SoNode;

/// The files that a scene's own nodes name by where they are beside the scene's file; each name once.
QStringList relativeReferences(SoNode *root);

#endif
