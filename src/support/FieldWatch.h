// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDWATCH_H
#define FIELDWATCH_H

#include "DeletionWatch.h"

#include <Inventor/fields/SoField.h>

#include <functional>
#include <utility>

/// A pointer to a field that turns null when the field is deleted.
class FieldWatch
{
public:
    FieldWatch() : m_watch(fieldDeleted, this) { }

    /// @p gone is called when the field is deleted.
    void set(SoField *field, std::function<void()> gone = {})
    {
        m_watch.detach();
        m_field = field;
        m_isLost = false;
        m_gone = std::move(gone);
        if (field)
            m_watch.attach(field);
    }

    SoField *get() const { return m_field; }
    /// Whether the field was deleted, and no other set since.
    bool isLost() const { return m_isLost; }

private:
    static void fieldDeleted(void *self, SoSensor *)
    {
        auto *const watch = static_cast<FieldWatch *>(self);
        watch->m_field = nullptr;
        watch->m_isLost = true;
        if (watch->m_gone)
            watch->m_gone();
    }

    SoField *m_field = nullptr;
    bool m_isLost = false;
    std::function<void()> m_gone;
    FieldDeletionWatch m_watch;
};

/// @p field as an F, or null where it is none.
template <class F> F *fieldCast(SoField *field)
{
    return field && field->isOfType(F::getClassTypeId()) ? static_cast<F *>(field) : nullptr;
}

#endif
