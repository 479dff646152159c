// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "NodeQuery.h"

#include "FieldText.h"

#include <Inventor/SbName.h>
#include <Inventor/nodes/SoNode.h>

#include <algorithm>
#include <cstring>

namespace
{
char small(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}
} // namespace

NodeQuery::NodeQuery(const QString &text) : m_text(text.trimmed().toLatin1())
{
    std::transform(m_text.begin(), m_text.end(), m_text.begin(), small);
}

bool NodeQuery::operator()(const SoNode &node) const
{
    const SoType type = node.getTypeId();
    const auto [known, isNew] = m_types.emplace(type.getKey(), false);
    if (isNew)
        known->second = matchesType(type);
    if (known->second)
        return true;
    if (const SbName name = node.getName(); name.getLength() > 0 && isPartOf(name.getString()))
        return true;
    const bool isUnknown = std::strncmp(type.getName().getString(), "Unknown", 7) == 0;
    return isUnknown && isPartOf(FieldText::typeName(node).toLatin1().constData());
}

bool NodeQuery::isPartOf(const char *text) const
{
    const char *const end = text + std::strlen(text);
    return std::search(text, end, m_text.begin(), m_text.end(),
                       [](char letter, char wanted) { return small(letter) == wanted; })
        != end;
}

bool NodeQuery::matchesType(SoType type) const
{
    if (isPartOf(type.getName().getString()))
        return true;
    for (SoType base = type.getParent(); !base.isBad(); base = base.getParent()) {
        const char *const name = base.getName().getString();
        if (std::strlen(name) == static_cast<std::size_t>(m_text.size()) && isPartOf(name))
            return true;
    }
    return false;
}
