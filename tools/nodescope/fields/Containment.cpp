// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Containment.h"

#include <Inventor/SoPath.h>
#include <Inventor/VRMLnodes/SoVRMLScript.h>
#include <Inventor/engines/SoEngine.h>
#include <Inventor/fields/SoFieldData.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoNode.h>

#include <algorithm>
#include <array>
#include <unordered_map>

namespace
{
using Objects = std::vector<SoFieldContainer *>;

SoFieldContainer *objectOf(SoFieldContainer *object)
{
    return object;
}

SoFieldContainer *objectOf(const SoPath *path)
{
    return path ? path->getHead() : nullptr;
}

template <class Field> void addValue(const SoField &field, Objects *objects)
{
    objects->push_back(objectOf(static_cast<const Field &>(field).getValue()));
}

template <class Field> void addValues(const SoField &field, Objects *objects)
{
    const auto &values = static_cast<const Field &>(field);
    for (int i = 0; i < values.getNum(); ++i)
        objects->push_back(objectOf(values[i]));
}

/// Asked of every field of a scene, so types are compared and not derived.
void addFrom(const SoField &field, Objects *objects)
{
    struct Kind {
        SoType type;
        void (*add)(const SoField &field, Objects *objects);
    };
    static const std::array<Kind, 6> kinds{{
        {SoSFNode::getClassTypeId(), addValue<SoSFNode>},
        {SoMFNode::getClassTypeId(), addValues<SoMFNode>},
        {SoSFPath::getClassTypeId(), addValue<SoSFPath>},
        {SoMFPath::getClassTypeId(), addValues<SoMFPath>},
        {SoSFEngine::getClassTypeId(), addValue<SoSFEngine>},
        {SoMFEngine::getClassTypeId(), addValues<SoMFEngine>},
    }};
    const SoType type = field.getTypeId();
    for (const Kind &kind : kinds)
        if (kind.type == type)
            kind.add(field, objects);
}

bool isScript(const SoFieldContainer &container)
{
    return container.isOfType(SoVRMLScript::getClassTypeId());
}

/// Whether a field of @p container says what it works on, and not what it is made of.
bool isMention(const SoFieldContainer &container, const SoField &field)
{
    static const SbName unknown("UnknownNode");
    const bool isNode
        = field.getTypeId() == SoSFNode::getClassTypeId() || field.getTypeId() == SoMFNode::getClassTypeId();
    return isNode && (isScript(container) || container.getTypeId().getName() == unknown);
}

/// Goes down from each place where it may begin and looks for a way that meets itself.
class CircleSearch
{
public:
    bool findsFrom(const Objects &starts)
    {
        m_starts = starts;
        while (!m_starts.empty()) {
            SoFieldContainer *const start = m_starts.back();
            m_starts.pop_back();
            if (enter(start) || descend())
                return true;
        }
        return false;
    }
    void open(SoFieldContainer *container) { m_isOpen[container] = true; }

private:
    struct Step {
        SoFieldContainer *container;
        Objects content;
        std::size_t next = 0;
    };

    /// Whether the way has been there.
    bool enter(SoFieldContainer *container)
    {
        if (!container)
            return false;
        const auto [known, isNew] = m_isOpen.emplace(container, true);
        if (isNew)
            m_way.push_back({container, contentOf(*container)});
        return !isNew && known->second;
    }

    bool descend()
    {
        while (!m_way.empty()) {
            Step &step = m_way.back();
            if (step.next < step.content.size()) {
                if (enter(step.content[step.next++]))
                    return true;
                continue;
            }
            m_isOpen[step.container] = false;
            m_way.pop_back();
        }
        return false;
    }

    Objects contentOf(const SoFieldContainer &container)
    {
        Objects content;
        const SoFieldData *const fields = container.getFieldData();
        for (int i = 0; fields && i < fields->getNumFields(); ++i) {
            const SoField &field = *fields->getField(&container, i);
            addFrom(field, isMention(container, field) ? &m_starts : &content);
        }
        const bool isNode = container.isOfType(SoNode::getClassTypeId());
        const SoChildList *const children = isNode ? static_cast<const SoNode &>(container).getChildren() : nullptr;
        for (int i = 0; children && i < children->getLength(); ++i)
            content.push_back((*children)[i]);
        return content;
    }

    std::unordered_map<SoFieldContainer *, bool> m_isOpen; ///< those on the way down are open
    std::vector<Step> m_way;
    Objects m_starts;
};
} // namespace

std::vector<SoFieldContainer *> objectsIn(const SoField &field)
{
    Objects objects;
    addFrom(field, &objects);
    objects.erase(std::remove(objects.begin(), objects.end(), nullptr), objects.end());
    return objects;
}

bool containsItself(SoFieldContainer *root)
{
    return CircleSearch().findsFrom({root});
}

bool leadsInCircles(const SoField &field)
{
    SoFieldContainer *const owner = field.getContainer();
    CircleSearch search;
    if (owner && !isScript(*owner))
        search.open(owner);
    return search.findsFrom(objectsIn(field));
}
