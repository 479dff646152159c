// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RowsCommand.h"

#include "CoinRef.h"
#include "FieldRows.h"
#include "FieldText.h"
#include "OneNotification.h"

#include <QCoreApplication>

#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoMField.h>

#include <utility>

namespace
{
constexpr int textLimit = 32;

QString translated(const char *text)
{
    return QCoreApplication::translate("RowsCommand", text);
}
} // namespace

RowsCommand::RowsCommand(SoMField &field, std::vector<RowsChange> changes, bool wasDefault, int series)
    : m_container(coinRef(field.getContainer())), m_field(field), m_changes(std::move(changes)),
      m_wasDefault(wasDefault), m_series(series)
{
    describe();
}

void RowsCommand::undo()
{
    {
        const OneNotification once(m_field);
        for (auto change = m_changes.rbegin(); change != m_changes.rend(); ++change)
            FieldRows::replace(m_field, change->row, change->after->getNum(), *change->before);
    }
    m_field.setDefault(m_wasDefault);
}

void RowsCommand::redo()
{
    if (std::exchange(m_done, false))
        return;
    const OneNotification once(m_field);
    for (const RowsChange &change : m_changes)
        FieldRows::replace(m_field, change.row, change.before->getNum(), *change.after);
}

bool RowsCommand::mergeWith(const QUndoCommand *next)
{
    const auto *const following = dynamic_cast<const RowsCommand *>(next);
    if (!following || &following->m_field != &m_field || following->m_changes[0].row != m_changes[0].row)
        return false;
    m_changes[0].after = following->m_changes[0].after;
    setObsolete(FieldRows::areSame(*m_changes[0].before, *m_changes[0].after));
    describe();
    return true;
}

void RowsCommand::describe()
{
    const QString name = FieldText::qualifiedName(m_field);
    const RowsChange &change = m_changes[0];
    const int removed = change.before->getNum();
    const int added = change.after->getNum();
    const int label = change.row + 1; // as the table has it
    if (m_changes.size() > 1 || (removed == 2 && added == 2))
        setText(translated("%1: move a row").arg(name));
    else if (removed == 0)
        setText(added == 1 ? translated("%1: add row %2").arg(name).arg(label)
                           : translated("%1: add %2 rows").arg(name).arg(added));
    else if (added == 0)
        setText(removed == 1 ? translated("%1: delete row %2").arg(name).arg(label)
                             : translated("%1: delete %2 rows").arg(name).arg(removed));
    else
        setText(QStringLiteral("%1[%2]: %3 %4 %5")
                    .arg(name)
                    .arg(change.row)
                    .arg(FieldText::value(*change.before, textLimit), QString(QChar(0x2192)),
                         FieldText::value(*change.after, textLimit)));
}

SwapColumnsCommand::SwapColumnsCommand(SoMField &field, int first, int second, bool wasDefault)
    : m_container(coinRef(field.getContainer())), m_field(field), m_first(first), m_second(second),
      m_wasDefault(wasDefault)
{
    setText(translated("%1: exchange two columns").arg(FieldText::qualifiedName(field)));
}

void SwapColumnsCommand::undo()
{
    FieldRows::swapColumns(m_field, m_first, m_second);
    m_field.setDefault(m_wasDefault);
}

void SwapColumnsCommand::redo()
{
    if (!std::exchange(m_done, false))
        FieldRows::swapColumns(m_field, m_first, m_second);
}
