// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbEditors.h>

#include "support/DeletionWatch.h"

#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldData.h>
#include <Inventor/nodes/SoNode.h>
#include <Inventor/threads/SbThreadMutex.h>

#include <algorithm>
#include <map>
#include <optional>
#include <set>

class HbGUIManagement;

namespace
{
/// Never destroyed: Coin frees the texts of names when it ends, which may be before the last editor goes.
const SbName &noNodeName()
{
    static const auto *const name = new SbName("NoNodeName");
    return *name;
}

class MutexLock
{
public:
    explicit MutexLock(SbThreadMutex &mutex) : m_mutex(mutex) { m_mutex.lock(); }
    ~MutexLock() { m_mutex.unlock(); }
    Q_DISABLE_COPY(MutexLock)

private:
    SbThreadMutex &m_mutex;
};

/// The fields of one node, looked at once however many editors ask.
class NodeFields
{
public:
    explicit NodeFields(SoNode *node) : m_node(node), m_data(node->getFieldData()) { }

    /// False for a node class that keeps no record of its fields; one without fields has an empty record.
    bool exist() const { return m_data != nullptr; }

    SoField *find(SoField *wanted)
    {
        if (!m_fields) {
            m_fields.emplace();
            for (int i = 0; i < m_data->getNumFields(); ++i)
                m_fields->insert(m_data->getField(m_node, i));
        }
        return m_fields->count(wanted) ? wanted : nullptr;
    }

    SoField *findFirst(SoType type)
    {
        const auto [known, isNew] = m_firstOfType.try_emplace(type.getKey(), nullptr);
        for (int i = 0; isNew && !known->second && i < m_data->getNumFields(); ++i) {
            SoField *const candidate = m_data->getField(m_node, i);
            if (candidate->isOfType(type))
                known->second = candidate;
        }
        return known->second;
    }

private:
    SoNode *m_node;
    const SoFieldData *m_data;
    std::optional<std::set<SoField *>> m_fields;
    std::map<int, SoField *> m_firstOfType;
};
} // namespace

/// Takes an editor out of the registry when the node or field of its key dies: another one at the same
/// address must not be mistaken for it.
class HbEditors::KeyWatch
{
public:
    KeyWatch(HbEditors *editor, SoField *field) : m_field(keyDied, editor), m_node(keyDied, editor)
    {
        m_field.attach(field);
    }
    KeyWatch(HbEditors *editor, SoNode *node) : m_field(keyDied, editor), m_node(keyDied, editor)
    {
        m_node.attach(node);
    }

private:
    static void keyDied(void *editor, SoSensor *) { static_cast<HbEditors *>(editor)->HbEditors::leaveRegistry(); }

    FieldDeletionWatch m_field;
    NodeDeletionWatch m_node;
};

HbEditors::HbEditors(QWidget *parent, Qt::WindowFlags flags)
    : HbNscPlugins(reinterpret_cast<HbGUIManagement *>(parent)), QFrame(parent, flags), nodeName(noNodeName()),
      type(SoType::badType())
{
    ensureCoinStarted();
    setVisible(false);
}

HbEditors::~HbEditors()
{
    leaveRegistry();
}

SbString HbEditors::getDescription() const
{
    return "Editor for Nodescope";
}

SbString HbEditors::getHelp() const
{
    return "No help available";
}

SbString HbEditors::getName() const
{
    return "HbEditors based Editor";
}

SbString HbEditors::getVersion() const
{
    return "1.0";
}

template <class Key> bool HbEditors::enlist(Key HbEditors::*slot, const Key &key)
{
    const MutexLock lock(s_editorsListMutex());
    if (registered)
        return false;
    this->*slot = key;
    s_editors().push_back(this);
    registered = true;
    return true;
}

void HbEditors::registerEditor(const SbName &name)
{
    enlist(&HbEditors::nodeName, name);
}

void HbEditors::registerEditor(SoField *key)
{
    if (enlist(&HbEditors::field, key) && key)
        m_keyWatch = std::make_unique<KeyWatch>(this, key);
}

void HbEditors::registerEditor(SoNode *key)
{
    if (enlist(&HbEditors::node, key) && key)
        m_keyWatch = std::make_unique<KeyWatch>(this, key);
}

void HbEditors::registerEditor(const SoType &key)
{
    enlist(&HbEditors::type, key);
}

void HbEditors::unregisterEditor()
{
    m_keyWatch.reset();
    leaveRegistry();
}

void HbEditors::leaveRegistry()
{
    const MutexLock lock(s_editorsListMutex());
    if (!registered)
        return;
    registered = false;
    nodeName = noNodeName();
    field = nullptr;
    currentNode = nullptr;
    node = nullptr;
    type = SoType::badType();
    auto &editors = s_editors();
    editors.erase(std::find(editors.begin(), editors.end(), this));
}

bool HbEditors::servesNode(SoNode *candidate, const SbName &candidateName) const
{
    return candidateName == nodeName || candidate == node || (!type.isBad() && candidate->isOfType(type));
}

bool HbEditors::getRegisteredEditor(SoNode *node, HbEditors *&editor)
{
    bool found = false;
    if (node) {
        const MutexLock lock(s_editorsListMutex());
        const SbName name = node->getName();
        NodeFields fields(node);
        for (HbEditors *const candidate : s_editors()) {
            if (candidate->servesNode(node, name)) {
                editor = candidate;
                candidate->currentNode = node;
                found = true;
                break;
            }
            if (!fields.exist())
                break;
            SoField *match = nullptr;
            if (candidate->field)
                match = fields.find(candidate->field);
            else if (!candidate->type.isBad())
                match = fields.findFirst(candidate->type);
            if (match) {
                editor = candidate;
                candidate->currentField = match;
                found = true;
            }
        }
    }
    if (editor)
        editor->updateEditor(); // may delete the editor, register and unregister others
    return found;
}

std::vector<HbEditors *> &HbEditors::s_editors()
{
    static auto *const editors = new std::vector<HbEditors *>;
    return *editors;
}

SbThreadMutex &HbEditors::s_editorsListMutex()
{
    static auto *const mutex = new SbThreadMutex;
    return *mutex;
}
