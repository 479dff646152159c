// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef WRITEWATCH_H
#define WRITEWATCH_H

#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/sensors/SoFieldSensor.h>

/// Hears whether a field is written. Coin's parsers refuse a text in silence and may have stored half of it.
class WriteWatch : public SoFieldSensor
{
public:
    explicit WriteWatch(SoField &field) : SoFieldSensor(nullptr, nullptr)
    {
        const SoFieldContainer *const container = field.getContainer();
        m_written = !field.isNotifyEnabled() || (container && !container->isNotifyEnabled()); // else nobody would know
        attach(&field);
    }

    bool isWritten() const { return m_written; }
    void notify(SoNotList *) override { m_written = true; }

private:
    bool m_written;
};

#endif
