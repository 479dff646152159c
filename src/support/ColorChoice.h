// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef COLORCHOICE_H
#define COLORCHOICE_H

#include <QColor>

class QWidget;

/// Asks for a colour; invalid when cancelled, and when @p parent dies meanwhile.
QColor chooseColor(const QColor &initial, QWidget *parent);

#endif
