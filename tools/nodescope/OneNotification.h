// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ONENOTIFICATION_H
#define ONENOTIFICATION_H

#include <Inventor/fields/SoField.h>

/// A field is silent while this lives; at its end it notifies once, unless another such object keeps it silent.
class OneNotification
{
public:
    explicit OneNotification(SoField &field) : m_field(field), m_wasEnabled(field.enableNotify(FALSE)) { }
    ~OneNotification()
    {
        m_field.enableNotify(m_wasEnabled);
        if (m_isCancelled)
            return;
        m_field.setDefault(FALSE);
        m_field.touch();
    }
    OneNotification(const OneNotification &) = delete;
    OneNotification &operator=(const OneNotification &) = delete;

    /// Nothing was changed after all.
    void cancel() { m_isCancelled = true; }

private:
    SoField &m_field;
    SbBool m_wasEnabled;
    bool m_isCancelled = false;
};

#endif
