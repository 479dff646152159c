// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RowsCommand.h"

#include "CoinRef.h"
#include "FieldRows.h"
#include "FieldText.h"
#include "KeptImages.h"
#include "OneNotification.h"

#include <QCoreApplication>

#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoMField.h>

#include <numeric>
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
    const KeptImages kept(m_field);
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
    const KeptImages kept(m_field);
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
    if (isObsolete())
        m_field.setDefault(m_wasDefault); // there and back
    describe();
    return true;
}

/// Rows are called by the numbers that the table's headers show.
void RowsCommand::describe()
{
    const QString name = FieldText::qualifiedName(m_field);
    const RowsChange &change = m_changes[0];
    const int removed = change.before->getNum();
    const int added = change.after->getNum();
    const int first = change.row + 1;
    const int last = change.row + qMax(removed, added);
    if (m_changes.size() > 1 && added == 0)
        setText(translated("%1: delete %2 rows").arg(name).arg(rowCountBefore()));
    else if (m_changes.size() > 1)
        setText(translated("%1: move row %2 to %3").arg(name).arg(first).arg(m_changes[1].row + 1));
    else if (removed == 0)
        setText(rowText(translated("%1: add row %2"), translated("%1: add rows %2 to %3"), first, last));
    else if (added == 0)
        setText(rowText(translated("%1: delete row %2"), translated("%1: delete rows %2 to %3"), first, last));
    else if (last > first)
        setText(translated("%1: change rows %2 to %3").arg(name).arg(first).arg(last));
    else
        setText(translated("%1, row %2: %3 %4 %5")
                    .arg(name)
                    .arg(first)
                    .arg(FieldText::value(*change.before, textLimit), QString(QChar(0x2192)),
                         FieldText::value(*change.after, textLimit))
                    .simplified());
}

int RowsCommand::rowCountBefore() const
{
    return std::accumulate(m_changes.begin(), m_changes.end(), 0,
                           [](int sum, const RowsChange &change) { return sum + change.before->getNum(); });
}

QString RowsCommand::rowText(const QString &one, const QString &several, int first, int last) const
{
    const QString name = FieldText::qualifiedName(m_field);
    return first == last ? one.arg(name).arg(first) : several.arg(name).arg(first).arg(last);
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
