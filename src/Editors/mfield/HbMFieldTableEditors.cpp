// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

// The editors that are open in the table's cells.

#include <HbMFieldTable.h>

#include <HbMFieldTableItemDelegate.h>
#include <HbSlider.h>

#include <QApplication>
#include <QLineEdit>

#include <algorithm>

/// What was typed in a row belongs to that row, not to the one that moves there. False if the host deletes the table
/// in answer.
bool HbMFieldTable::finishEditing()
{
    const QPointer<HbMFieldTable> self(this);
    const std::vector<QWidget *> open = m_delegate->openEditors(*this);
    for (const QPointer<QWidget> &editor : std::vector<QPointer<QWidget>>(open.begin(), open.end())) {
        if (!self)
            break;
        if (auto *const slider = qobject_cast<HbSlider *>(editor))
            slider->changeValueFromEdit();
        else
            commitData(editor);
        if (self && editor)
            closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
    return self;
}

bool HbMFieldTable::isOpen(const QWidget *editor) const
{
    const std::vector<QWidget *> open = m_delegate->openEditors(*this);
    return std::find(open.begin(), open.end(), editor) != open.end();
}

/// As Qt does with editors of other delegates, which would go on with a view that the host deletes in answer. It may
/// also speak of an editor whose row went while it was committed.
void HbMFieldTable::commitData(QWidget *editor)
{
    if (!m_delegate->hasMade(editor)) {
        QTableWidget::commitData(editor);
        return;
    }
    if (editor == m_committing || !isOpen(editor))
        return;
    const QPointer<HbMFieldTable> self(this);
    const QPointer<QWidget> alive(editor);
    QWidget *const before = std::exchange(m_committing, editor);
    editor->removeEventFilter(m_delegate); // so that losing the focus does not commit again
    m_delegate->commit(editor, model());
    if (!self)
        return;
    m_committing = before;
    if (alive)
        editor->installEventFilter(m_delegate);
}

void HbMFieldTable::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (m_delegate->hasMade(editor) && !isOpen(editor))
        return;
    auto *const slider = qobject_cast<HbSlider *>(editor);
    if (slider && hint == QAbstractItemDelegate::RevertModelCache)
        slider->findChild<QLineEdit *>()->setModified(false); // it reports when the focus goes
    QTableWidget::closeEditor(editor, hint);
}

void HbMFieldTable::editorDestroyed(QObject *editor)
{
    if (!editor)
        return;
    if (const auto *const slider = qobject_cast<HbSlider *>(editor)) {
        const auto *const edit = slider->findChild<QLineEdit *>();
        if (edit && (edit->hasFocus() || edit->rect().contains(edit->mapFromGlobal(QCursor::pos()))))
            return;
    }
    QTableWidget::editorDestroyed(editor);
}

/// Whether the keyboard is in a cell editor: its keys are its own, also those that it does not use.
bool HbMFieldTable::isTyping() const
{
    const QWidget *const focused = QApplication::focusWidget();
    return focused && focused != this && focused != viewport() && isAncestorOf(focused);
}
