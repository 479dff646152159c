// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Benchmarks.h"
#include "Comparison.h"

#include <HbEditors.h>

#include <Inventor/fields/SoFieldData.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QByteArray>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <unordered_map>

namespace
{
constexpr int editorCount = 10000;

class RegisteredEditor : public HbEditors
{
public:
    RegisteredEditor() : HbEditors(nullptr, {}) { }
    void updateEditor() override { }
};

/// What a person keeps who has no registry; one of the four is set.
struct Key {
    SbName name;
    const SoNode *node;
    const SoField *field;
    SoType type;
    HbEditors *editor;

    bool fits(const SoNode &wanted, const SbName &wantedName) const
    {
        return name == wantedName || node == &wanted || (field && field->getContainer() == &wanted)
            || (!type.isBad() && (wanted.isOfType(type) || hasFieldOfType(wanted)));
    }

private:
    bool hasFieldOfType(const SoNode &wanted) const
    {
        const SoFieldData *const fields = wanted.getFieldData();
        for (int i = 0; i < fields->getNumFields(); ++i) {
            if (fields->getField(&wanted, i)->isOfType(type))
                return true;
        }
        return false;
    }
};

/// Ten thousand registered editors, the same keys kept by hand, and a node that only the last one serves.
class Registry
{
public:
    enum KeyKinds { OnlyNames, AllInTurn };

    explicit Registry(KeyKinds kinds)
    {
        m_root->ref();
        m_root->addChild(m_wanted);
        m_wanted->setName(nameAt(editorCount - 1));
        for (int i = 0; i < editorCount; ++i) {
            m_editors.push_back(std::make_unique<RegisteredEditor>());
            const bool isLast = i == editorCount - 1;
            addKey(kinds == OnlyNames || isLast ? 0 : i % 4, nameAt(i), *m_editors.back());
        }
    }
    ~Registry()
    {
        m_editors.clear();
        m_root->unref();
    }
    Registry(const Registry &) = delete;
    Registry &operator=(const Registry &) = delete;

    HbEditors *find() const
    {
        HbEditors *found = nullptr;
        HbEditors::getRegisteredEditor(m_wanted, found);
        return found;
    }

    HbEditors *walk() const
    {
        const SbName name = m_wanted->getName();
        const auto key = std::find_if(m_keys.begin(), m_keys.end(),
                                      [&](const Key &candidate) { return candidate.fits(*m_wanted, name); });
        return key == m_keys.end() ? nullptr : key->editor;
    }

    HbEditors *hash() const
    {
        const auto found = m_byName.find(m_wanted->getName().getString()); // equal names share their text
        return found == m_byName.end() ? nullptr : found->second;
    }

private:
    static SbName nameAt(int index) { return SbName(("node" + QByteArray::number(index)).constData()); }

    void addKey(int kind, const SbName &name, HbEditors &editor)
    {
        Key key{SbName::empty(), nullptr, nullptr, SoType::badType(), &editor};
        auto *const other = new SoMaterial;
        m_root->addChild(other);
        switch (kind) {
        case 0:
            key.name = name;
            m_byName.emplace(name.getString(), &editor);
            editor.registerEditor(name);
            break;
        case 1:
            key.node = other;
            editor.registerEditor(other);
            break;
        case 2:
            key.field = &other->shininess;
            editor.registerEditor(&other->shininess);
            break;
        default:
            key.type = SoCube::getClassTypeId();
            editor.registerEditor(key.type);
        }
        m_keys.push_back(key);
    }

    SoSeparator *m_root = new SoSeparator;
    SoCone *m_wanted = new SoCone;
    std::vector<std::unique_ptr<RegisteredEditor>> m_editors;
    std::vector<Key> m_keys;
    std::unordered_map<const char *, HbEditors *> m_byName;
};

using Search = HbEditors *(Registry::*)() const;

std::function<double()> timed(const std::shared_ptr<Registry> &registry, Search search)
{
    return [=] {
        HbEditors *found = nullptr;
        const double seconds = secondsOf([&] { found = ((*registry).*search)(); });
        if (!found)
            throw std::logic_error("the last editor is not found");
        return seconds;
    };
}

void compareSearch(const char *name, Registry::KeyKinds kinds, const char *against, Search search)
{
    compare({name, against}, [=] {
        const auto registry = std::make_shared<Registry>(kinds);
        return Sides{timed(registry, &Registry::find), timed(registry, search)};
    });
}
} // namespace

void addRegistryBenchmarks()
{
    const char *const byName = "the last of 10,000 editors by name";
    compareSearch(byName, Registry::OnlyNames, "walking a vector of names and keys", &Registry::walk);
    compareSearch(byName, Registry::OnlyNames, "an unordered_map of names alone", &Registry::hash);
    compareSearch("the last of 10,000 with keys of all kinds", Registry::AllInTurn, "walking a vector of all keys",
                  &Registry::walk);
}
