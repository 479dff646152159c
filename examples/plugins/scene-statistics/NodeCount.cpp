// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "NodeCount.h"

#include <Inventor/SbName.h>
#include <Inventor/fields/SoFieldData.h>
#include <Inventor/fields/SoMFString.h>
#include <Inventor/fields/SoSFImage.h>
#include <Inventor/fields/SoSFString.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoNode.h>

#include <unordered_map>
#include <vector>

namespace
{
struct ValueSize {
    const char *type; ///< without SF or MF
    int bytes;
};
constexpr ValueSize valueSizes[] = {
    {"Bool", 4},    {"Float", 4},  {"Double", 8},    {"Int32", 4},  {"UInt32", 4}, {"Short", 2},  {"UShort", 2},
    {"Enum", 4},    {"Name", 8},   {"BitMask", 4},   {"Time", 8},   {"Vec2f", 8},  {"Vec3f", 12}, {"Vec4f", 16},
    {"Vec2s", 4},   {"Vec3s", 6},  {"Vec2i32", 8},   {"Vec3d", 24}, {"Color", 12}, {"Plane", 16}, {"ColorRGBA", 16},
    {"Matrix", 64}, {"Box3f", 24}, {"Rotation", 16}, {"Node", 8},   {"Path", 8},   {"Engine", 8}, {"Trigger", 0},
};

/// 0 where the type is not known.
int bytesPerValue(SoType type)
{
    static std::unordered_map<int, int> known;
    const auto [size, isNew] = known.try_emplace(type.getKey(), -1);
    const SbString name = type.getName().getString();
    for (const ValueSize &candidate : valueSizes)
        if (isNew && name.getLength() > 2 && name.getSubString(2) == candidate.type)
            size->second = candidate.bytes;
    return size->second;
}

double bytesOf(const SoField &field)
{
    if (field.isOfType(SoSFString::getClassTypeId()))
        return static_cast<const SoSFString &>(field).getValue().getLength() + 1.0;
    if (field.isOfType(SoMFString::getClassTypeId())) {
        const auto &texts = static_cast<const SoMFString &>(field);
        double bytes = 0;
        for (int i = 0; i < texts.getNum(); ++i)
            bytes += texts[i].getLength() + 1.0;
        return bytes;
    }
    if (field.isOfType(SoSFImage::getClassTypeId())) {
        SbVec2s size;
        int components = 0;
        static_cast<const SoSFImage &>(field).getValue(size, components);
        return double(size[0]) * size[1] * components;
    }
    const int count = field.isOfType(SoMField::getClassTypeId()) ? static_cast<const SoMField &>(field).getNum() : 1;
    return double(count) * bytesPerValue(field.getTypeId());
}

void addFields(NodeCount &count, const SoNode &node)
{
    const SoFieldData *const fields = node.getFieldData();
    for (int i = 0; fields && i < fields->getNumFields(); ++i) {
        const double bytes = bytesOf(*fields->getField(&node, i));
        if (bytes < 0)
            ++count.unknownFields;
        else
            count.fieldBytes += bytes;
    }
}
} // namespace

/// Goes to every node once, without recursion: scenes may be as deep as they like.
NodeCount NodeCount::of(SoNode &root)
{
    struct Step {
        SoNode *node;
        int nextChild;
    };
    NodeCount count;
    std::unordered_map<const SoNode *, double> places{{&root, 0}};
    std::vector<Step> way{{&root, 0}};
    while (!way.empty()) {
        Step &step = way.back();
        const SoChildList *const children = step.node->getChildren();
        const int childCount = children ? children->getLength() : 0;
        if (step.nextChild < childCount) {
            SoNode *const child = (*children)[step.nextChild++];
            if (places.try_emplace(child, 0).second)
                way.push_back({child, 0});
            continue;
        }
        double below = 1;
        for (int i = 0; i < childCount; ++i)
            below += places[(*children)[i]];
        places[step.node] = below;
        addFields(count, *step.node);
        way.pop_back();
    }
    count.nodes = int(places.size());
    count.places = places[&root];
    return count;
}
