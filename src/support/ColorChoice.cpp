// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ColorChoice.h"

#include <QColorDialog>
#include <QPointer>

QColor chooseColor(const QColor &initial, QWidget *parent)
{
    // not QColorDialog::getColor(): its dialog lives on the stack and would be deleted with its parent
    const QPointer<QColorDialog> dialog(new QColorDialog(initial.isValid() ? initial : QColor(Qt::black), parent));
    dialog->exec();
    if (!dialog)
        return {};
    const QColor chosen = dialog->selectedColor();
    delete dialog;
    return chosen;
}
