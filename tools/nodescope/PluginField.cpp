// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PluginField.h"

#include "CoinRef.h"

#include <QWidget>

#include <Inventor/nodes/SoNode.h>

PluginField::PluginField(SoNode &node, SoField &field, const FieldRow::Made &made)
    : m_node(coinRef(&node)), m_row(field, made, nullptr)
{
    setParent(m_row.widget());
    connect(&m_row, &FieldRow::message, this, &PluginField::message);
    connect(&m_row, &FieldRow::nodeWanted, this, &PluginField::nodeWanted);
    connect(&m_observer, &FieldObserver::nodeChanged, &m_row, &FieldRow::follow);
    connect(&m_observer, &FieldObserver::fieldChanged, this, [this](const SoField *changed) {
        if (changed == m_row.field())
            m_row.follow();
    });
    m_observer.watch(&node);
}

PluginField::~PluginField()
{
    m_observer.watch(nullptr);
}
