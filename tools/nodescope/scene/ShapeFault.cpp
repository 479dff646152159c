// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ShapeFault.h"

#include "ShapeOutline.h"
#include "ShapeSupply.h"

#include <Inventor/fields/SoMFInt32.h>
#include <Inventor/nodes/SoShape.h>

#include <QCoreApplication>

#include <cstdint>

namespace
{

QString tr(const char *text)
{
    return QCoreApplication::translate("ShapeFault", text);
}

/// Values and the list that picks from them.
struct Values {
    QString name;
    int count;
    ShapeSupply::Binding binding;
    const char *listName;
    const char *vrmlListName;
};

const SoMFInt32 *indicesIn(const SoShape &shape, const char *name)
{
    return static_cast<const SoMFInt32 *>(shape.getField(name));
}

QString beyond(int index, const QString &list, const Values &values)
{
    return values.count > 0
        ? tr("the index %1 in %2 is not one of the %3 %4 (0 to %5)")
              .arg(index)
              .arg(list)
              .arg(values.count)
              .arg(values.name)
              .arg(values.count - 1)
        : tr("the index %1 in %2 points to nothing, as there are no %3").arg(index).arg(list, values.name);
}

QString tooFew(std::int64_t needed, const Values &values)
{
    return tr("it takes %1 %2, and there are %3").arg(needed).arg(values.name).arg(values.count);
}

QString faultInList(const ShapeOutline &outline, const Values &values, const SoMFInt32 &list, const QString &name,
                    std::int64_t reads)
{
    const bool isPerCorner = values.binding >= SoMaterialBindingElement::PER_VERTEX;
    const int end = isPerCorner ? outline.indices()->getNum() : static_cast<int>(reads);
    for (int i = 0; i < end; ++i) {
        if (isPerCorner && (*outline.indices())[i] < 0)
            continue;
        if (i >= list.getNum())
            return tr("%1 has %2 values, and at least %3 are needed").arg(name).arg(list.getNum()).arg(i + 1);
        if (list[i] < 0 || list[i] >= values.count)
            return beyond(list[i], name, values);
    }
    return {};
}

bool isIndexed(ShapeSupply::Binding binding)
{
    return binding == SoMaterialBindingElement::PER_PART_INDEXED
        || binding == SoMaterialBindingElement::PER_FACE_INDEXED
        || binding == SoMaterialBindingElement::PER_VERTEX_INDEXED;
}

/// Where there are no values at all, Coin makes its own or goes without.
QString faultIn(const SoShape &shape, const ShapeOutline &outline, const Values &values, bool isPicked)
{
    const std::int64_t reads = outline.reads(values.binding);
    if (values.count <= 0 || reads == 0)
        return {};
    if (!outline.indices() || !isIndexed(values.binding))
        return reads > values.count ? tooFew(reads, values) : QString();
    const char *const name = indicesIn(shape, values.listName) ? values.listName : values.vrmlListName;
    const SoMFInt32 *const list = indicesIn(shape, name);
    const bool isGiven = list && list->getNum() > 0 && (*list)[0] >= 0;
    const QString listName = QString::fromLatin1(name);
    if (isGiven)
        return faultInList(outline, values, *list, listName, reads);
    if (values.binding == SoMaterialBindingElement::PER_VERTEX_INDEXED)
        return faultInList(outline, values, *outline.indices(), QStringLiteral("coordIndex"), reads);
    if (isPicked || outline.kind() == ShapeOutline::Lines)
        return tr("%1 is empty, and at least %2 values are needed").arg(listName).arg(reads);
    return {};
}

QString faultInCorners(const ShapeOutline &outline, const Values &coordinates)
{
    if (coordinates.count == ShapeSupply::unread)
        return {};
    if (!outline.indices()) {
        const std::int64_t needed = outline.start() + outline.corners();
        return outline.corners() > 0 && needed > coordinates.count ? tooFew(needed, coordinates) : QString();
    }
    for (int i = 0; i < outline.indices()->getNum(); ++i)
        if ((*outline.indices())[i] >= coordinates.count && !outline.indices()->isDefault())
            return beyond((*outline.indices())[i], QStringLiteral("coordIndex"), coordinates);
    return {};
}

} // namespace

QString faultOf(const SoShape &shape, const ShapeSupply &supply, bool isPicked)
{
    ShapeOutline outline(shape, supply.coordinates);
    if (!outline.fault().isEmpty())
        return outline.fault();
    const Values all[] = {{tr("normals"), supply.normals, supply.normalBinding, "normalIndex", "normalIndex"},
                          {tr("materials"), supply.materials, supply.materialBinding, "materialIndex", "colorIndex"},
                          {tr("texture coordinates"), supply.textureCoordinates,
                           SoMaterialBindingElement::PER_VERTEX_INDEXED, "textureCoordIndex", "texCoordIndex"}};
    QString fault = faultInCorners(outline, {tr("coordinates"), supply.coordinates, {}, nullptr, nullptr});
    for (const Values &values : all)
        if (fault.isEmpty())
            fault = faultIn(shape, outline, values, isPicked);
    return fault;
}
