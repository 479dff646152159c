// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SCENEWATCH_H
#define SCENEWATCH_H

#include <QObject>
#include <QTimer>

#include <memory>

class SoNode;
class SoNotList;

/// Tells once per turn of the event loop that something changed in a scene, whoever changed it.
class SceneWatch : public QObject
{
    Q_OBJECT

public:
    explicit SceneWatch(QObject *parent = nullptr);
    ~SceneWatch() override;

    /// Watches everything below @p root, or nothing for null. What happened before is forgotten.
    void watch(SoNode *root);

Q_SIGNALS:
    /// Nodes may have gained, lost or exchanged children. Below a VRML group Coin does not say which node
    /// changed, nor how, so that there this comes with every change.
    void structureChanged();
    /// Something changed that no edit of the tool's own explains, nor an engine.
    void changedElsewhere();
    /// Something changed; comes after the other two.
    void changed();

private:
    class Sensor;

    void notice(SoNotList *list);
    void report();

    std::unique_ptr<Sensor> m_sensor;
    QTimer m_report;
    bool m_structure = false;
    bool m_elsewhere = false;
};

#endif
