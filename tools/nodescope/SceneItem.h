// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEITEM_H
#define SCENEITEM_H

#include <QTreeWidgetItem>

#include <memory>

class SoNode;

/// One place of a node in the scene tree. Texts are made when they are shown.
class SceneItem : public QTreeWidgetItem
{
public:
    enum Column { Type, Name, ColumnCount };

    /// A node that only a field of the one above it holds comes with that field's name.
    explicit SceneItem(SoNode *node, const QString &field = {});

    SoNode *node() const { return m_node.get(); }
    /// Whether the children have been made; until then the item only shows whether there are any.
    bool isFilled() const { return m_filled; }
    void setFilled() { m_filled = true; }
    void updateIndicator();

    QVariant data(int column, int role) const override;

private:
    QString typeName() const;
    QString name() const;
    QString explanation() const;
    bool isLeftOut() const;
    bool isShared() const;

    std::shared_ptr<SoNode> m_node;
    QString m_field;
    bool m_filled = false;
};

#endif
