// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TickingRotor.h"

#include <Inventor/SoDB.h>

TickingRotor::TickingRotor()
    : m_switch([](void *self, SoSensor *) { static_cast<TickingRotor *>(self)->follow(); }, this)
{
    m_switch.setPriority(0); // at once
    m_switch.attach(&on);
    follow();
}

TickingRotor::~TickingRotor()
{
    m_clock.disconnect();
}

void TickingRotor::replaceRotor()
{
    SoType::overrideType(SoRotor::getClassTypeId(), []() -> void * { return new TickingRotor; });
}

void TickingRotor::follow()
{
    if (!on.getValue())
        m_clock.disconnect();
    else if (!m_clock.isConnected())
        m_clock.connectFrom(SoDB::getGlobalField("realTime"));
}
