// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ReadableLine.h"

#include <HbPopupWidget.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

ReadableLine::ReadableLine(HbPopupWidget &editor) : QObject(&editor), m_editor(editor)
{
    auto *const line = editor.findChild<QLineEdit *>(QStringLiteral("lineEdit"));
    line->setReadOnly(true);
    line->setEnabled(true);
    QPalette palette;
    palette.setBrush(QPalette::Base, palette.brush(QPalette::Window)); // it does not ask to be typed in
    line->setPalette(palette);
    line->installEventFilter(this);
    connect(line, &QLineEdit::textChanged, line, [line] { line->setCursorPosition(0); });
}

bool ReadableLine::eventFilter(QObject *, QEvent *event)
{
    bool isOpening = event->type() == QEvent::MouseButtonDblClick;
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        isOpening = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2;
    }
    if (isOpening)
        m_editor.findChild<QPushButton *>(QStringLiteral("m_editButton"))->click();
    return isOpening;
}
