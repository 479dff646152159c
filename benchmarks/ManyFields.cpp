// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ManyFields.h"

#include <string>

SO_NODE_SOURCE(ManyFields)

void ManyFields::initClass()
{
    SO_NODE_INIT_CLASS(ManyFields, SoNode, "Node");
}

ManyFields::ManyFields()
{
    SO_NODE_CONSTRUCTOR(ManyFields);
    add(reals, "real");
    add(integers, "integer");
    add(shorts, "short");
    add(masks, "mask");
    add(shortMasks, "shortMask");
    add(flags, "flag");
}

ManyFields::~ManyFields() = default;

template <class Field> void ManyFields::add(std::array<Field, 5> &fields, const char *name)
{
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i].setValue(0);
        fields[i].setContainer(this);
        fieldData->addField(this, (name + std::to_string(i)).c_str(), &fields[i]);
    }
}

void ManyFields::changeAll()
{
    const auto toggle = [](auto &fields) {
        for (auto &field : fields)
            field.setValue(field.getValue() == 0);
    };
    toggle(reals);
    toggle(integers);
    toggle(shorts);
    toggle(masks);
    toggle(shortMasks);
    toggle(flags);
}
