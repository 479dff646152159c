// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldDefaults.h"

#include <Inventor/SbString.h>
#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoFieldData.h>

namespace
{
void copyValue(SoField &target, SoField &source)
{
    if (target.getTypeId() == source.getTypeId()) {
        target.copyFrom(source); // to the last bit, which text is not
        return;
    }
    SbString text;
    source.get(text);
    target.set(text.getString());
}

/// The field of @p fresh in the place that @p field has in its container; null where there is none.
SoField *counterpart(const SoField &field, SoFieldContainer &fresh)
{
    const SoFieldContainer *const container = field.getContainer();
    const SoFieldData *const fields = container->getFieldData();
    const SoFieldData *const freshFields = fresh.getFieldData();
    if (!fields || !freshFields)
        return nullptr;
    const int index = fields->getIndex(container, &field);
    return index >= 0 && index < freshFields->getNumFields() ? freshFields->getField(&fresh, index) : nullptr;
}
} // namespace

bool setToDefault(SoField &field)
{
    const SoFieldContainer *const container = field.getContainer();
    if (!container || !container->getTypeId().canCreateInstance())
        return false;
    auto *const fresh = static_cast<SoFieldContainer *>(container->getTypeId().createInstance());
    if (!fresh)
        return false;
    fresh->ref();
    SoField *const source = counterpart(field, *fresh);
    if (source)
        copyValue(field, *source);
    fresh->unref();
    return source != nullptr;
}
