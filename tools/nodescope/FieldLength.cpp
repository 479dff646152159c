// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldLength.h"

#include <Inventor/SoPath.h>
#include <Inventor/engines/SoEngine.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/lists/SoFieldList.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoNode.h>

namespace
{
/// Counts the values to be written, until there are too many.
class Count
{
public:
    bool isExceeded() const { return m_left < 0; }

    void add(const SoField &field)
    {
        --m_left;
        if (field.isOfType(SoMField::getClassTypeId()) && m_isInside)
            m_left -= static_cast<const SoMField &>(field).getNum(); // the rows of a table are read when they show
        if (field.isOfType(SoMFNode::getClassTypeId())) {
            const auto &nodes = static_cast<const SoMFNode &>(field);
            for (int i = 0; i < nodes.getNum() && !isExceeded(); ++i)
                add(nodes[i]);
        }
        if (field.isOfType(SoSFNode::getClassTypeId()))
            add(static_cast<const SoSFNode &>(field).getValue());
        else if (field.isOfType(SoSFEngine::getClassTypeId()))
            add(static_cast<const SoSFEngine &>(field).getValue());
        else if (field.isOfType(SoSFImage3::getClassTypeId()))
            add(static_cast<const SoSFImage3 &>(field));
        else if (field.isOfType(SoSFPath::getClassTypeId())) {
            const SoPath *const path = static_cast<const SoSFPath &>(field).getValue();
            add(path ? path->getHead() : nullptr);
        }
    }

private:
    void add(const SoSFImage3 &image)
    {
        SbVec3s size;
        int components = 0;
        image.getValue(size, components);
        m_left -= static_cast<long>(size[0]) * size[1] * size[2];
    }

    void add(const SoFieldContainer *container)
    {
        if (!container || isExceeded())
            return;
        m_isInside = true;
        SoFieldList fields;
        const int count = container->getFields(fields);
        for (int i = 0; i < count && !isExceeded(); ++i)
            if (!fields[i]->isDefault())
                add(*fields[i]);
        const bool isNode = container->isOfType(SoNode::getClassTypeId());
        const SoChildList *const children = isNode ? static_cast<const SoNode *>(container)->getChildren() : nullptr;
        for (int i = 0; children && i < children->getLength() && !isExceeded(); ++i)
            add((*children)[i]);
    }

    long m_left = 200;
    bool m_isInside = false; ///< of the nodes that the field refers to
};
} // namespace

bool isLong(const SoField &field)
{
    Count count;
    count.add(field);
    return count.isExceeded();
}
