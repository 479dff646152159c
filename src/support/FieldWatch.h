// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDWATCH_H
#define FIELDWATCH_H

#include "DeletionWatch.h"

#include <Inventor/fields/SoField.h>

/// A pointer to a field that turns null when the field is deleted.
class FieldWatch
{
public:
    FieldWatch() : m_watch(fieldDeleted, this) { }

    void set(SoField *field)
    {
        m_watch.detach();
        m_field = field;
        if (field)
            m_watch.attach(field);
    }

    SoField *get() const { return m_field; }

private:
    static void fieldDeleted(void *self, SoSensor *) { static_cast<FieldWatch *>(self)->m_field = nullptr; }

    SoField *m_field = nullptr;
    FieldDeletionWatch m_watch;
};

/// @p field as an F, or null where it is none.
template <class F> F *fieldCast(SoField *field)
{
    return field && field->isOfType(F::getClassTypeId()) ? static_cast<F *>(field) : nullptr;
}

#endif
