// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef INDEXCHECK_H
#define INDEXCHECK_H

#include <QString>

class SoField;
class SoNode;

/// Whether the indices and counts of a shape are covered by the coordinates, normals, materials and texture
/// coordinates that it finds in a scene.
namespace IndexCheck
{
/// The scene in which shapes are looked for; null forgets. Of a shape that stands elsewhere only what its own fields
/// hold is known.
void setScene(SoNode *root);
/// Why the shape to which @p field belongs cannot be drawn, as the end of a sentence; empty for all other nodes.
QString faultOf(const SoField &field);
} // namespace IndexCheck

#endif
