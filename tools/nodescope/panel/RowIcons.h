// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROWICONS_H
#define ROWICONS_H

#include <QIcon>

/// Shapes in the colour of the buttons' text, drawn at the size that is asked for.
namespace RowIcons
{
/// A switch: on while the field counts, off while its button is checked and the field is ignored.
QIcon ignoreField();
/// An arrow that goes back.
QIcon setToDefault();
} // namespace RowIcons

#endif
