// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "EditorButton.h"

#include "FieldEditorSettings.h"

#include <QPixmap>
#include <QPushButton>

QPushButton *newEditorButton(QWidget *parent, const QString &name, const QPixmap &icon)
{
    auto *const button = new QPushButton(parent);
    button->setObjectName(name);
    button->setMaximumSize(nscsettings_fieldEditor(QStringLiteral("buttonWidth")),
                           nscsettings_fieldEditor(QStringLiteral("buttonHeight")));
    button->setIcon(icon);
    button->setAutoDefault(false); // in a dialog, Return in an edit would press it
    return button;
}
