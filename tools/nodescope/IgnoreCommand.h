// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef IGNORECOMMAND_H
#define IGNORECOMMAND_H

#include "CoinRef.h"
#include "FieldText.h"

#include <QCoreApplication>
#include <QUndoCommand>

#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>

/// One undo step: a field's ignore flag was turned. Keeps the field's node alive.
class IgnoreCommand : public QUndoCommand
{
public:
    /// The flag is turned already; redo() does nothing the first time.
    explicit IgnoreCommand(SoField &field)
        : m_container(coinRef(field.getContainer())), m_field(field), m_ignored(field.isIgnored())
    {
        const QString text = m_ignored ? QCoreApplication::translate("IgnoreCommand", "%1: ignore")
                                       : QCoreApplication::translate("IgnoreCommand", "%1: do not ignore");
        setText(text.arg(FieldText::qualifiedName(field)));
    }

    void undo() override { m_field.setIgnored(!m_ignored); }
    void redo() override { m_field.setIgnored(m_ignored); }

private:
    std::shared_ptr<SoFieldContainer> m_container;
    SoField &m_field;
    bool m_ignored;
};

#endif
