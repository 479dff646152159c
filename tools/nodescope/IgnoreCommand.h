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
    IgnoreCommand(SoField &field, bool ignored)
        : m_container(coinRef(field.getContainer())), m_field(field), m_ignored(ignored), m_wasDefault(field.isDefault())
    {
        const QString text = m_ignored ? QCoreApplication::translate("IgnoreCommand", "%1: ignore")
                                       : QCoreApplication::translate("IgnoreCommand", "%1: do not ignore");
        setText(text.arg(FieldText::qualifiedName(field)));
    }

    void undo() override
    {
        turn(!m_ignored);
        m_field.setDefault(m_wasDefault); // which turning the other flag has cleared
    }
    void redo() override { turn(m_ignored); }

private:
    /// Tells the node, and so the picture, but not who follows the field: a texture would load its image anew.
    void turn(bool ignored)
    {
        const bool wasNotifying = m_field.enableNotify(FALSE);
        m_field.setIgnored(ignored);
        m_field.enableNotify(wasNotifying);
        m_container->touch();
    }

    std::shared_ptr<SoFieldContainer> m_container;
    SoField &m_field;
    bool m_ignored;
    bool m_wasDefault;
};

#endif
