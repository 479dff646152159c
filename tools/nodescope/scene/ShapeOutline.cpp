// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ShapeOutline.h"

#include <Inventor/fields/SoMFInt32.h>
#include <Inventor/fields/SoSFInt32.h>
#include <Inventor/nodes/SoShape.h>

#include <QCoreApplication>

#include <algorithm>
#include <numeric>
#include <utility>

namespace
{

QString tr(const char *text)
{
    return QCoreApplication::translate("ShapeFault", text);
}

ShapeOutline::Kind kindOf(const SoShape &shape)
{
    const QByteArray type(shape.getTypeId().getName().getString());
    if (type.contains("LineSet"))
        return ShapeOutline::Lines;
    if (type.contains("StripSet"))
        return ShapeOutline::Strips;
    if (type.contains("FaceSet"))
        return ShapeOutline::Faces;
    return type.contains("Mesh") ? ShapeOutline::Mesh : ShapeOutline::Points;
}

int numberIn(const SoShape &shape, const char *name)
{
    const auto *const number = static_cast<const SoSFInt32 *>(shape.getField(name));
    return number ? number->getValue() : 0;
}

} // namespace

ShapeOutline::ShapeOutline(const SoShape &shape, int coordinates)
    : m_kind(kindOf(shape)), m_indices(static_cast<const SoMFInt32 *>(shape.getField("coordIndex"))),
      m_start(numberIn(shape, "startIndex"))
{
    if (m_indices)
        readIndices();
    else if (m_start < 0)
        m_fault = tr("startIndex is less than 0");
    else if (const auto *const numbers = static_cast<const SoMFInt32 *>(shape.getField("numVertices")))
        readCounts(*numbers, coordinates);
    else if (m_kind == Mesh)
        m_runs.assign(static_cast<std::size_t>(std::max(numberIn(shape, "verticesPerColumn"), 0)),
                      std::max(numberIn(shape, "verticesPerRow"), 0));
    else
        readPoints(shape.getField("numPoints") ? numberIn(shape, "numPoints") : -1, coordinates);
}

void ShapeOutline::readIndices()
{
    std::int64_t run = 0;
    for (int i = 0; i < m_indices->getNum(); ++i) {
        if ((*m_indices)[i] >= 0)
            ++run;
        if (run > 0 && ((*m_indices)[i] < 0 || i + 1 == m_indices->getNum()))
            m_runs.push_back(std::exchange(run, 0));
    }
}

/// The last of the numbers may be -1: as many as are left.
void ShapeOutline::readCounts(const SoMFInt32 &numbers, int coordinates)
{
    for (int i = 0; i < numbers.getNum(); ++i) {
        const bool isRest = numbers[i] == -1 && i + 1 == numbers.getNum();
        if (isRest && coordinates == ShapeSupply::unread)
            continue;
        const std::int64_t run = isRest ? left(coordinates) : numbers[i];
        if (run < 0)
            m_fault = tr("numVertices has the number %1").arg(run);
        else if ((m_kind == Faces || m_kind == Strips) && run < 3 && (run > 0 || isRest))
            m_fault = tr("a face has %1 corners only").arg(run);
        m_runs.push_back(run);
    }
}

void ShapeOutline::readPoints(int number, int coordinates)
{
    if (number >= 0)
        m_runs.push_back(number);
    else if (coordinates != ShapeSupply::unread)
        m_runs.push_back(left(coordinates));
}

std::int64_t ShapeOutline::left(int coordinates) const
{
    return std::max(coordinates - m_start - corners(), std::int64_t(0));
}

/// Where a run has so many parts less than it has corners.
std::int64_t ShapeOutline::partsLess(std::int64_t ends) const
{
    return std::accumulate(m_runs.begin(), m_runs.end(), std::int64_t(0), [ends](std::int64_t sum, std::int64_t run) {
        return sum + std::max(run - ends, std::int64_t(0));
    });
}

std::int64_t ShapeOutline::reads(ShapeSupply::Binding binding) const
{
    const auto runs = static_cast<std::int64_t>(m_runs.size());
    const bool isPart = binding <= SoMaterialBindingElement::PER_PART_INDEXED;
    if (binding == SoMaterialBindingElement::OVERALL)
        return 0;
    if (binding >= SoMaterialBindingElement::PER_VERTEX || m_kind == Points)
        return corners();
    switch (m_kind) {
    case Lines:
        return isPart ? partsLess(1) : runs;
    case Strips:
        return isPart ? runs : partsLess(2);
    case Mesh:
        return isPart || runs == 0 ? std::max(runs - 1, std::int64_t(0))
                                   : (runs - 1) * std::max(m_runs[0] - 1, std::int64_t(0));
    default:
        return runs;
    }
}
