// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef PLUGINFIELD_H
#define PLUGINFIELD_H

#include "FieldObserver.h"
#include "FieldRow.h"

#include <memory>

class SoNode;

/// What a field editor of a plug-in gets from the tool: undo, the present value, its node kept alive. Dies with it.
class PluginField : public QObject
{
    Q_OBJECT

public:
    PluginField(SoNode &node, SoField &field, const FieldRow::Made &made);
    ~PluginField() override;

    /// Commits what is being typed.
    void finish() { m_row.finish(); }

Q_SIGNALS:
    void message(const QString &text);
    void nodeWanted(SoNode *node);

private:
    std::shared_ptr<SoNode> m_node;
    FieldRow m_row;
    FieldObserver m_observer;
};

#endif
