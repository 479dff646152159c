// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef MANYFIELDS_H
#define MANYFIELDS_H

#include <Inventor/fields/SoSFBool.h>
#include <Inventor/fields/SoSFFloat.h>
#include <Inventor/fields/SoSFInt32.h>
#include <Inventor/fields/SoSFShort.h>
#include <Inventor/fields/SoSFUInt32.h>
#include <Inventor/fields/SoSFUShort.h>
#include <Inventor/nodes/SoSubNode.h>

#include <array>

/// A node with 30 fields, five of each kind that has an editor.
class ManyFields : public SoNode
{
    SO_NODE_HEADER(ManyFields);

public:
    static void initClass();
    ManyFields();

    std::array<SoSFFloat, 5> reals;
    std::array<SoSFInt32, 5> integers;
    std::array<SoSFShort, 5> shorts;
    std::array<SoSFUInt32, 5> masks;
    std::array<SoSFUShort, 5> shortMasks;
    std::array<SoSFBool, 5> flags;

    /// Gives every field another value than it has.
    void changeAll();

protected:
    ~ManyFields() override;

private:
    template <class Field> void add(std::array<Field, 5> &fields, const char *name);
};

#endif
