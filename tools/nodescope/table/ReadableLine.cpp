// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ReadableLine.h"

#include "NumberParts.h"

#include <HbPopupWidget.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace
{
/// "0.8" and not "0.80000001", which are the same float.
QString shortened(const QString &text)
{
    QStringList words = text.split(QLatin1Char(' '));
    for (QString &word : words) {
        bool isNumber = false;
        const float number = word.toFloat(&isNumber);
        if (isNumber)
            word = NumberParts::shortest(number);
    }
    return words.join(QLatin1Char(' '));
}
} // namespace

ReadableLine::ReadableLine(HbPopupWidget &editor)
    : QObject(&editor), m_editor(editor), m_line(editor.findChild<QLineEdit *>(QStringLiteral("lineEdit")))
{
    QLineEdit *const line = m_line;
    line->setReadOnly(true);
    line->setEnabled(true);
    QPalette palette;
    palette.setBrush(QPalette::Base, palette.brush(QPalette::Window)); // it does not ask to be typed in
    line->setPalette(palette);
    line->installEventFilter(this);
    editor.findChild<QFrame *>(QStringLiteral("m_popupFrame"))->installEventFilter(this);
    const auto showStart = [line] {
        if (!line->hasFocus())
            line->setCursorPosition(0);
    };
    connect(line, &QLineEdit::cursorPositionChanged, line, showStart); // setting the same text moves it to the end
    const auto shorten = [line] { line->setText(shortened(line->text())); };
    connect(line, &QLineEdit::textChanged, line, shorten);
    shorten();
    showStart();
}

bool ReadableLine::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && watched != m_line)
        QMetaObject::invokeMethod(this, &ReadableLine::selectFirst, Qt::QueuedConnection); // once it has the focus
    if (watched != m_line)
        return false;
    bool isOpening = event->type() == QEvent::MouseButtonDblClick;
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        isOpening = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2;
    }
    if (isOpening)
        m_editor.findChild<QPushButton *>(QStringLiteral("m_editButton"))->click();
    return isOpening;
}

/// What is typed takes the place of the number, as in the others.
void ReadableLine::selectFirst()
{
    if (auto *const edit = qobject_cast<QLineEdit *>(QApplication::focusWidget()); edit && !edit->isModified())
        edit->selectAll();
}
