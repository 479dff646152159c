// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDTEXT_H
#define FIELDTEXT_H

#include <QString>

class SoBase;
class SoField;

/// What a person reads about a field.
namespace FieldText
{
/// The class of a node or an engine; one that is not known here is called as it is in its file.
QString typeName(const SoBase &object);

/// The class and, where it has one, the name: "Cone Mast".
QString nodeName(const SoBase &object);

/// The class of its node and its own name: "Cone.height".
QString qualifiedName(const SoField &field);

/// The value in @p limit characters or a few more. Costs the same for a million values as for ten.
QString value(SoField &field, int limit);

/// Where the value comes from, "Calculator.oa", while the field is connected; otherwise empty.
QString source(const SoField &field);

/// Why the value cannot be edited, as a sentence; empty when it can.
QString obstacle(const SoField &field);
} // namespace FieldText

#endif
