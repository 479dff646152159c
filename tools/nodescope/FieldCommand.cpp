// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldCommand.h"

#include "CoinRef.h"
#include "FieldText.h"

#include <QCoreApplication>

#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>

#include <utility>

FieldCommand::FieldCommand(SoField &field, const FieldSnapshot &before, const FieldSnapshot &after, int series)
    : m_container(coinRef(field.getContainer())), m_field(field), m_before(before), m_after(after), m_series(series)
{
    describe();
}

int FieldCommand::newSeries()
{
    static int last = noSeries;
    return ++last;
}

void FieldCommand::undo()
{
    m_before.restore(m_field);
}

void FieldCommand::redo()
{
    if (!std::exchange(m_done, false))
        m_after.restore(m_field);
}

bool FieldCommand::mergeWith(const QUndoCommand *next)
{
    const auto &following = static_cast<const FieldCommand &>(*next);
    if (&following.m_field != &m_field)
        return false;
    m_after = following.m_after;
    setObsolete(m_before == m_after);
    describe();
    return true;
}

void FieldCommand::describe()
{
    const auto translated = [](const char *text) { return QCoreApplication::translate("FieldCommand", text); };
    const QString name = FieldText::qualifiedName(m_field);
    if (!m_before.isSameValue(m_after))
        setText(QStringLiteral("%1: %2 %3 %4").arg(name, m_before.text(), QChar(0x2192), m_after.text()));
    else if (m_before.isIgnored() != m_after.isIgnored())
        setText((m_after.isIgnored() ? translated("%1: ignore") : translated("%1: do not ignore")).arg(name));
    else
        setText(translated("%1: set to default").arg(name));
}
