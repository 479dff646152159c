// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBGUITREEVIEWMANAGEMENT_H
#define HBGUITREEVIEWMANAGEMENT_H

#include <harborapi_export.h>

#include <QTreeWidget>

/// The tree in which a tool shows its scene graph; the tool emits the signals, plug-ins connect to them.
class HARBORAPI_EXPORT HbGUITreeviewManagement : public QTreeWidget
{
    Q_OBJECT

public:
    explicit HbGUITreeviewManagement(QWidget *parent = nullptr);
    ~HbGUITreeviewManagement() override;

Q_SIGNALS:
    /// The user asked for the context of @p item with a right click.
    void rightClicked(QTreeWidgetItem *item);
    /// The tree now shows another scene graph.
    void newSceneGraph();
};

#endif
