// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldObserver.h"

#include <QPointer>

#include <Inventor/misc/SoNotification.h>
#include <Inventor/nodes/SoNode.h>
#include <Inventor/sensors/SoNodeSensor.h>

#include <algorithm>
#include <utility>

/// Hears of each change at once and by field, where Coin's own queue would keep only the last field.
class FieldObserver::Sensor : public SoNodeSensor
{
public:
    explicit Sensor(FieldObserver &observer) : SoNodeSensor(nullptr, nullptr), m_observer(observer) { }

    void notify(SoNotList *changes) override
    {
        const SoField *const field = changes->getLastField();
        if (!field || field->getContainer() == getAttachedNode()) // not one of a child
            m_observer.mark(field);
    }

private:
    FieldObserver &m_observer;
};

FieldObserver::FieldObserver(QObject *parent) : QObject(parent), m_sensor(std::make_unique<Sensor>(*this)) { }

FieldObserver::~FieldObserver() = default;

void FieldObserver::watch(SoNode *node)
{
    m_sensor->detach();
    m_changed.clear();
    if (node)
        m_sensor->attach(node);
}

void FieldObserver::mark(const SoField *field)
{
    if (std::find(m_changed.begin(), m_changed.end(), field) == m_changed.end())
        m_changed.push_back(field);
    if (!std::exchange(m_scheduled, true))
        QMetaObject::invokeMethod(this, &FieldObserver::report, Qt::QueuedConnection);
}

void FieldObserver::report()
{
    m_scheduled = false;
    const QPointer<FieldObserver> self(this);
    for (const SoField *const field : std::exchange(m_changed, {})) {
        if (!self)
            return;
        if (field)
            Q_EMIT fieldChanged(field);
        else
            Q_EMIT nodeChanged();
    }
}
