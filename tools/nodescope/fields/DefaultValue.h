// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef DEFAULTVALUE_H
#define DEFAULTVALUE_H

#include "FieldSnapshot.h"

#include <Inventor/SoType.h>

/// What a field holds in a new node of its class; made when it is first asked for.
class DefaultValue
{
public:
    /// Whether @p field holds something else; false where the default is not known. Always the same field of a class.
    bool isUnlike(const SoField &field);

private:
    SoType m_class = SoType::badType();
    std::optional<FieldSnapshot> m_value;
};

#endif
