// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldSnapshot.h"

#include "CoinRef.h"
#include "FieldText.h"

#include <QByteArray>

#include <Inventor/SbName.h>
#include <Inventor/SoOutput.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoFields.h>

#include <algorithm>
#include <cstdlib>

namespace
{
constexpr int textLimit = 32;

/// Fields whose binary form is not their value: it spells names, or writes what they point to.
bool isSymbolic(const SoField &field)
{
    static SoType (*const types[])() = {
        SoSFEnum::getClassTypeId, SoMFEnum::getClassTypeId, SoSFNode::getClassTypeId,   SoMFNode::getClassTypeId,
        SoSFPath::getClassTypeId, SoMFPath::getClassTypeId, SoSFEngine::getClassTypeId, SoMFEngine::getClassTypeId,
    };
    return std::any_of(std::begin(types), std::end(types), [&](auto type) { return field.isOfType(type()); });
}

/// All bits of the value, as a binary file would hold them.
QByteArray bitsOf(const SoField &field)
{
    constexpr size_t initialSize = 256;
    SoOutput out;
    out.setBuffer(std::malloc(initialSize), initialSize, std::realloc);
    out.setBinary(TRUE);
    out.setStage(SoOutput::WRITE); // the stage before it only counts references
    field.write(&out, SbName("value"));
    void *buffer = nullptr;
    size_t size = 0;
    out.getBuffer(buffer, size);
    const QByteArray bits(static_cast<const char *>(buffer), static_cast<int>(size));
    std::free(buffer);
    return bits;
}
} // namespace

FieldSnapshot::FieldSnapshot(const SoField &field)
    : m_value(static_cast<SoField *>(field.getTypeId().createInstance())), m_default(field.isDefault()),
      m_ignored(field.isIgnored())
{
    m_value->copyFrom(field);
    m_value->setDefault(FALSE); // a default would not be written, see bitsOf()
}

std::optional<FieldSnapshot> FieldSnapshot::ofDefault(const SoField &field)
{
    const SoFieldContainer *const container = field.getContainer();
    if (!container || !container->getTypeId().canCreateInstance())
        return std::nullopt;
    const auto fresh = coinRef(static_cast<SoFieldContainer *>(container->getTypeId().createInstance()));
    SbName name;
    const SoField *const counterpart = fresh && container->getFieldName(&field, name) ? fresh->getField(name) : nullptr;
    if (!counterpart || counterpart->getTypeId() != field.getTypeId())
        return std::nullopt;
    return FieldSnapshot(*counterpart);
}

void FieldSnapshot::restore(SoField &field) const
{
    if (!isSameValue(FieldSnapshot(field)))
        field.copyFrom(*m_value);
    field.setIgnored(m_ignored);
    field.setDefault(m_default); // last: a change of the value clears it
}

bool FieldSnapshot::isSameValue(const FieldSnapshot &other) const
{
    if (m_value->getTypeId() != other.m_value->getTypeId())
        return false;
    return isSymbolic(*m_value) ? m_value->isSame(*other.m_value) : bitsOf(*m_value) == bitsOf(*other.m_value);
}

bool FieldSnapshot::operator==(const FieldSnapshot &other) const
{
    return m_default == other.m_default && m_ignored == other.m_ignored && isSameValue(other);
}

QString FieldSnapshot::text() const
{
    return FieldText::value(*m_value, textLimit).simplified(); // Qt gives lines of an undo text a meaning
}
