// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldLength.h"

#include "Containment.h"

#include <Inventor/fields/SoMField.h>
#include <Inventor/fields/SoSFImage3.h>
#include <Inventor/lists/SoFieldList.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoNode.h>

namespace
{
/// Counts the values to be written, with the nodes that hold them, until there are too many.
class Count
{
public:
    bool isExceeded() const { return m_left < 0; }

    void add(const SoField &field)
    {
        addValues(field);
        m_isInside = true;
        while (!isExceeded()) {
            const SoFieldContainer *const container = m_open.take();
            if (!container)
                return;
            add(*container);
        }
    }

private:
    void addValues(const SoField &field)
    {
        --m_left;
        if (field.isOfType(SoMField::getClassTypeId()) && m_isInside)
            m_left -= static_cast<const SoMField &>(field).getNum(); // the rows of a table are read when they show
        if (field.isOfType(SoSFImage3::getClassTypeId()))
            add(static_cast<const SoSFImage3 &>(field));
        for (const SoFieldContainer *const object : objectsIn(field))
            m_open.add(object);
    }

    void add(const SoSFImage3 &image)
    {
        SbVec3s size;
        int components = 0;
        image.getValue(size, components);
        m_left -= static_cast<long>(size[0]) * size[1] * size[2];
    }

    void add(const SoFieldContainer &container)
    {
        --m_left;
        SoFieldList fields;
        const int count = container.getFields(fields);
        for (int i = 0; i < count && !isExceeded(); ++i)
            if (!fields[i]->isDefault())
                addValues(*fields[i]);
        const bool isNode = container.isOfType(SoNode::getClassTypeId());
        const SoChildList *const children = isNode ? static_cast<const SoNode &>(container).getChildren() : nullptr;
        for (int i = 0; children && i < children->getLength() && i <= m_left; ++i)
            m_open.add((*children)[i]);
    }

    OpenNodes<const SoFieldContainer> m_open;
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
