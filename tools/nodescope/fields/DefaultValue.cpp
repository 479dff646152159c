// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "DefaultValue.h"

#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoMField.h>
#include <Inventor/fields/SoSFEnum.h>

bool DefaultValue::isUnlike(const SoField &field)
{
    if (field.isDefault() || !field.getContainer())
        return false;
    const SoType nodeClass = field.getContainer()->getTypeId();
    if (nodeClass != m_class) {
        m_class = nodeClass;
        m_value = FieldSnapshot::ofDefault(field);
    }
    if (!m_value)
        return false;
    const SoField &standard = m_value->value();
    const bool hasRows = field.isOfType(SoMField::getClassTypeId());
    if (hasRows && static_cast<const SoMField &>(field).getNum() != static_cast<const SoMField &>(standard).getNum())
        return true; // nobody compares a million values
    if (field.isOfType(SoSFEnum::getClassTypeId())) // whose copy has the number, but not the names
        return static_cast<const SoSFEnum &>(field).getValue() != static_cast<const SoSFEnum &>(standard).getValue();
    return !field.isSame(standard);
}
