// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CoinEventLoop.h"

#include <Inventor/SoDB.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoSFBool.h>
#include <Inventor/fields/SoSFTime.h>
#include <Inventor/lists/SoFieldList.h>
#include <Inventor/sensors/SoSensorManager.h>

#include <algorithm>
#include <cmath>

namespace
{
/// Whether a node or an engine of the clock's kind is told to stand still.
bool isSwitchedOff(const SoFieldContainer *container)
{
    for (const char *name : {"on", "enabled"}) {
        const SoField *field = container ? container->getField(name) : nullptr;
        if (field && field->isOfType(SoSFBool::getClassTypeId()))
            return !static_cast<const SoSFBool *>(field)->getValue();
    }
    return false;
}
} // namespace

CoinEventLoop::CoinEventLoop(QObject *parent) : QObject(parent)
{
    for (QTimer *timer : {&m_timerQueue, &m_delayQueue})
        timer->setSingleShot(true);
    m_timerQueue.setTimerType(Qt::PreciseTimer);
    connect(&m_timerQueue, &QTimer::timeout, this, &CoinEventLoop::runTimers);
    connect(&m_delayQueue, &QTimer::timeout, this, &CoinEventLoop::runDelayed);
    SoDB::getSensorManager()->setChangedCallback(&CoinEventLoop::queueChanged, this);
    constexpr double ticksPerSecond = 30;
    SoDB::setRealTimeInterval(SbTime(1 / ticksPerSecond));
    updateClock();
    schedule();
}

CoinEventLoop::~CoinEventLoop()
{
    SoDB::getSensorManager()->setChangedCallback(nullptr, nullptr);
}

void CoinEventLoop::updateClock()
{
    SoFieldList listeners;
    bool needed = false;
    for (int i = SoDB::getGlobalField("realTime")->getForwardConnections(listeners); i-- > 0 && !needed;)
        needed = !isSwitchedOff(listeners[i]->getContainer());
    if (needed != s_clockRuns)
        SoDB::enableRealTimeSensor(needed);
    s_clockRuns = needed;
}

void CoinEventLoop::queueChanged(void *self)
{
    static_cast<CoinEventLoop *>(self)->schedule();
}

void CoinEventLoop::schedule()
{
    SoSensorManager *manager = SoDB::getSensorManager();
    if (!manager->isDelaySensorPending())
        m_delayQueue.stop();
    else if (!m_delayQueue.isActive())
        m_delayQueue.start(0);

    SbTime due;
    if (manager->isTimerSensorPending(due)) {
        const double wait = (due - SbTime::getTimeOfDay()).getValue() * 1000;
        m_timerQueue.start(static_cast<int>(std::clamp(std::ceil(wait), 0.0, 1e6)));
    } else {
        m_timerQueue.stop();
    }
}

void CoinEventLoop::runTimers()
{
    SoDB::getSensorManager()->processTimerQueue();
    schedule();
}

void CoinEventLoop::runDelayed()
{
    SoDB::getSensorManager()->processTimerQueue();
    SoDB::getSensorManager()->processDelayQueue(TRUE);
    schedule();
}
