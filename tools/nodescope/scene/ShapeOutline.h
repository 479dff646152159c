// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SHAPEOUTLINE_H
#define SHAPEOUTLINE_H

#include "ShapeSupply.h"

#include <QString>

#include <cstdint>
#include <vector>

class SoMFInt32;
class SoShape;

/// What Coin reads one after another to draw a shape: the corners of faces, lines, strips, or points.
class ShapeOutline
{
public:
    enum Kind { Faces, Lines, Strips, Mesh, Points };

    /// The number of coordinates counts where the shape takes all that are left.
    ShapeOutline(const SoShape &shape, int coordinates);

    Kind kind() const { return m_kind; }
    /// Null where the coordinates are read in their order.
    const SoMFInt32 *indices() const { return m_indices; }
    /// The first coordinate, where there are no indices.
    std::int64_t start() const { return m_start; }
    std::int64_t corners() const { return partsLess(0); }
    /// How many values are read that are bound so.
    std::int64_t reads(ShapeSupply::Binding binding) const;
    /// Why it cannot be read, as the end of a sentence.
    const QString &fault() const { return m_fault; }

private:
    void readIndices();
    void readCounts(const SoMFInt32 &numbers, int coordinates);
    void readPoints(int number, int coordinates);
    std::int64_t left(int coordinates) const;
    std::int64_t partsLess(std::int64_t ends) const;

    Kind m_kind;
    const SoMFInt32 *m_indices = nullptr;
    std::vector<std::int64_t> m_runs; ///< the corners of each
    std::int64_t m_start = 0;
    QString m_fault;
};

#endif
