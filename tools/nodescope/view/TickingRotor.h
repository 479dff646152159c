// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TICKINGROTOR_H
#define TICKINGROTOR_H

#include <Inventor/fields/SoSFTime.h>
#include <Inventor/nodes/SoRotor.h>
#include <Inventor/sensors/SoFieldSensor.h>

/**
 * A Rotor that tells Coin's clock when it needs it. Every other node and engine that moves by itself is connected to
 * the clock; SoRotor only listens to it, which nobody can ask the clock for.
 *
 * To Coin, and in files, it is a Rotor: it takes the place of SoRotor wherever one is made by its type.
 */
class TickingRotor : public SoRotor
{
public:
    static void replaceRotor();

private:
    TickingRotor();
    ~TickingRotor() override;
    void follow();

    SoSFTime m_clock; ///< no field of the node: neither shown nor saved
    SoFieldSensor m_switch;
};

#endif
