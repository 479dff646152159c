// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneWatch.h"

#include "CoinEventLoop.h"
#include "OwnEdit.h"

#include <Inventor/fields/SoMFNode.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/fields/SoSFString.h>
#include <Inventor/misc/SoNotification.h>
#include <Inventor/nodes/SoFile.h>
#include <Inventor/nodes/SoRotor.h>
#include <Inventor/nodes/SoWWWInline.h>
#include <Inventor/sensors/SoNodeSensor.h>

#include <utility>

/// Hears of every change at once and is never queued: a queued sensor only remembers the last change.
class SceneWatch::Sensor : public SoNodeSensor
{
public:
    explicit Sensor(SceneWatch &owner) : m_owner(owner) { }
    void notify(SoNotList *list) override { m_owner.notice(list); }

private:
    SceneWatch &m_owner;
};

namespace
{

enum class Change { Touch, Value, Driven, Structure, Unclear };

bool holdsNodes(const SoField &field)
{
    return field.isOfType(SoSFNode::getClassTypeId()) || field.isOfType(SoMFNode::getClassTypeId());
}

/// A rotor turns by a sensor of its own.
bool isTurning(const SoField &field)
{
    const SoFieldContainer *const container = field.getContainer();
    if (!container || !container->isOfType(SoRotor::getClassTypeId()))
        return false;
    const auto &rotor = static_cast<const SoRotor &>(*container);
    return &field == &rotor.rotation && rotor.on.getValue();
}

/// The nodes below are another file's then.
bool namesFile(const SoField &field)
{
    SoFieldContainer *const container = field.getContainer();
    return field.isOfType(SoSFString::getClassTypeId()) && container
        && (container->isOfType(SoFile::getClassTypeId()) || container->isOfType(SoWWWInline::getClassTypeId()));
}

Change changeOf(SoNotList &list)
{
    SoNotRec *record = list.getFirstRecAtNode();
    const int operation = record ? record->getOperationType() : SoNotRec::UNSPECIFIED;
    if (operation >= SoNotRec::GROUP_ADDCHILD && operation <= SoNotRec::GROUP_REMOVEALLCHILDREN)
        return Change::Structure;
    const SoField *field = list.getLastField();
    if (!field)
        return Change::Touch;
    if (holdsNodes(*field)) // a kit's part, or anything at all below a VRML group
        return Change::Unclear;
    if (namesFile(*field))
        return Change::Structure;
    const bool isDriven = field->isConnected() || field->getFieldType() == SoField::EVENTOUT_FIELD || isTurning(*field);
    return isDriven ? Change::Driven : Change::Value;
}

} // namespace

SceneWatch::SceneWatch(QObject *parent) : QObject(parent), m_sensor(std::make_unique<Sensor>(*this))
{
    m_report.setSingleShot(true);
    m_report.setInterval(0);
    connect(&m_report, &QTimer::timeout, this, &SceneWatch::report);
}

SceneWatch::~SceneWatch() = default;

void SceneWatch::watch(SoNode *root)
{
    m_report.stop();
    m_structure = m_elsewhere = false;
    m_sensor->detach();
    if (root)
        m_sensor->attach(root);
}

void SceneWatch::notice(SoNotList *list)
{
    const Change change = list ? changeOf(*list) : Change::Unclear;
    const bool animated = change == Change::Unclear && CoinEventLoop::isClockRunning();
    if (change == Change::Structure || change == Change::Unclear)
        m_structure = true;
    if (change != Change::Touch && change != Change::Driven && !animated && !OwnEdit::isRunning())
        m_elsewhere = true;
    if (!m_report.isActive())
        m_report.start();
}

void SceneWatch::report()
{
    if (std::exchange(m_structure, false))
        Q_EMIT structureChanged();
    if (std::exchange(m_elsewhere, false))
        Q_EMIT changedElsewhere();
    Q_EMIT changed();
}
