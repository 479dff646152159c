// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ShownNumbers.h"

#include <HbFieldEditors.h>

#include <QEvent>
#include <QFrame>
#include <QLineEdit>

bool ShownNumbers::canShow(const SoField *field)
{
    return field && !NumberParts::of(*field).empty();
}

ShownNumbers::ShownNumbers(HbFieldEditors &editor) : QObject(&editor)
{
    const auto edits = NumberParts::editsIn(editor);
    for (QLineEdit *const edit : edits)
        m_edits.append(edit);
    if (auto *const grid = editor.findChild<QFrame *>(QStringLiteral("m_popupFrame")))
        grid->installEventFilter(this); // the editor fills it by itself
}

void ShownNumbers::show(const SoField *field)
{
    if (field != m_field)
        m_made.reset();
    m_field = field;
    const NumberParts::Numbers numbers = this->numbers();
    if (numbers.size() != static_cast<std::size_t>(m_edits.size()))
        return;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        QLineEdit *const edit = m_edits[static_cast<int>(i)];
        const QString text = NumberParts::shortest(numbers[i]);
        if (!edit || edit->text() == text)
            continue;
        edit->setText(text); // which does not count as an edit
        edit->setCursorPosition(0);
    }
}

NumberParts::Numbers ShownNumbers::numbers() const
{
    if (m_field && m_made && m_made->isSameValue(FieldSnapshot(*m_field)))
        return m_typed;
    return m_field ? NumberParts::of(*m_field) : NumberParts::Numbers();
}

void ShownNumbers::keep(const NumberParts::Numbers &typed)
{
    m_typed = typed;
    m_made.emplace(*m_field);
}

bool ShownNumbers::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Show)
        show(m_field);
    return false;
}
