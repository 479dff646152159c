// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef DELETIONWATCH_H
#define DELETIONWATCH_H

#include <Inventor/sensors/SoFieldSensor.h>
#include <Inventor/sensors/SoNodeSensor.h>

/// Starts Coin where the host has not done so yet; sensors cannot be made before.
void ensureCoinStarted();

/// A Coin sensor that hears only of the deletion of what it is attached to.
template <class Sensor> class DeletionWatch : private Sensor
{
public:
    DeletionWatch(SoSensorCB *whenDeleted, void *data) { this->setDeleteCallback(whenDeleted, data); }

    using Sensor::attach;
    using Sensor::detach;

private:
    void notify(SoNotList *) override { } // changes cost nothing
};

using FieldDeletionWatch = DeletionWatch<SoFieldSensor>;
using NodeDeletionWatch = DeletionWatch<SoNodeSensor>;

#endif
