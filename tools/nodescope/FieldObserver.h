// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDOBSERVER_H
#define FIELDOBSERVER_H

#include <QObject>

#include <Inventor/fields/SoField.h>

#include <memory>
#include <vector>

class SoNode;

/// Tells once per turn of the event loop which fields of a node changed, however often and by whatever.
class FieldObserver : public QObject
{
    Q_OBJECT

public:
    explicit FieldObserver(QObject *parent = nullptr);
    ~FieldObserver() override;

    /// Watches the fields of @p node, or nothing for null. What changed before is forgotten.
    void watch(SoNode *node);

Q_SIGNALS:
    void fieldChanged(const SoField *field);
    /// The node was touched as a whole.
    void nodeChanged();

private:
    class Sensor;

    void mark(const SoField *field);
    void report();

    std::unique_ptr<Sensor> m_sensor;
    std::vector<const SoField *> m_changed; ///< null stands for the node as a whole
    bool m_scheduled = false;
};

#endif
