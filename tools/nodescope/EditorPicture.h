// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef EDITORPICTURE_H
#define EDITORPICTURE_H

#include <QPixmap>

/// A picture of @p editor as it stands in the panel. Below one that opens a grid is the open grid, which
/// closes again.
QPixmap pictureOf(QWidget &editor);

#endif
