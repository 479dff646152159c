// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef KEPTSELECTION_H
#define KEPTSELECTION_H

#include <QApplication>
#include <QLineEdit>
#include <QPointer>

/// Keeps what is selected in the focused edit while the editors set their texts anew: what is typed next replaces it.
class KeptSelection
{
public:
    KeptSelection() : m_edit(qobject_cast<QLineEdit *>(QApplication::focusWidget()))
    {
        if (!m_edit)
            return;
        m_text = m_edit->text();
        m_cursor = m_edit->cursorPosition();
        m_start = m_edit->selectionStart();
        m_length = m_edit->selectionLength();
    }
    ~KeptSelection()
    {
        if (!m_edit)
            return;
        if (m_start == 0 && m_length == static_cast<int>(m_text.size()))
            m_edit->selectAll();
        else if (m_edit->text() == m_text && m_start >= 0) // the cursor stands at one end
            m_cursor == m_start ? m_edit->setSelection(m_start + m_length, -m_length)
                                : m_edit->setSelection(m_start, m_length);
        else if (m_edit->text() == m_text)
            m_edit->setCursorPosition(m_cursor);
    }
    KeptSelection(const KeptSelection &) = delete;
    KeptSelection &operator=(const KeptSelection &) = delete;

private:
    QPointer<QLineEdit> m_edit;
    QString m_text;
    int m_cursor = 0;
    int m_start = -1;
    int m_length = 0;
};

#endif
