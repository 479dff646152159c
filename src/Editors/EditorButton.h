// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef EDITORBUTTON_H
#define EDITORBUTTON_H

#include <QString>

class QPixmap;
class QPushButton;
class QWidget;

/// A small button of an editor: an icon within the size that the layout settings give.
QPushButton *newEditorButton(QWidget *parent, const QString &name, const QPixmap &icon);

#endif
