// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "NodeOrigin.h"

#include "ScenePath.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <Inventor/VRMLnodes/SoVRMLInline.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/misc/SoProto.h>
#include <Inventor/misc/SoProtoInstance.h>
#include <Inventor/nodes/SoFile.h>
#include <Inventor/nodes/SoWWWInline.h>

#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace
{

NodeOrigin fromFile(const SbString &fullName, const SbString &name)
{
    const QString given = QFile::decodeName(name.getString());
    const QString full = QFile::decodeName(fullName.getString());
    const bool isRead = full.endsWith(QFileInfo(given).fileName()); // else it is that of the file before
    const QString text = isRead && !full.isEmpty() ? full : given;
    const QUrl url(text);
    const QString path = url.isLocalFile() ? url.toLocalFile() : text;
    NodeOrigin origin;
    origin.kind = NodeOrigin::File;
    origin.name = QFileInfo(path).fileName();
    if (QFileInfo(path).isFile())
        origin.fileName = QFileInfo(path).absoluteFilePath();
    return origin;
}

SbString firstOf(const SoMFString &texts)
{
    return texts.getNum() > 0 ? texts[0] : SbString();
}

NodeOrigin fromPrototype(const SoNode *node)
{
    NodeOrigin origin;
    const SoProtoInstance *const call = SoProtoInstance::findProtoInstance(node);
    if (!call)
        return origin;
    origin.kind = NodeOrigin::Prototype;
    if (SoProto *const prototype = call->getProtoDefinition())
        origin.name = QString::fromLatin1(prototype->getProtoName().getString());
    return origin;
}

/// The nodes of a scene that are not its own; found when first asked for.
class ForeignNodes
{
public:
    SoNode *root = nullptr;

    void forget() { m_isKnown = false; }
    NodeOrigin originOf(const SoNode *node)
    {
        if (!std::exchange(m_isKnown, true))
            find();
        const auto found = m_origins.find(node);
        return found == m_origins.end() ? NodeOrigin() : found->second;
    }

private:
    struct Entry {
        SoNode *node;
        NodeOrigin origin;
    };

    void find()
    {
        m_origins.clear();
        std::unordered_set<const SoNode *> own; // but for those that stand in one place only
        std::vector<Entry> foreign;
        std::vector<SoNode *> open;
        if (root)
            open.push_back(root);
        while (!open.empty()) {
            SoNode *const parent = open.back();
            open.pop_back();
            const SoChildList *const children = parent->getChildren();
            const int count = children ? children->getLength() : 0;
            const NodeOrigin named = count > 0 ? NodeOrigin::namedBy(parent) : NodeOrigin();
            for (int i = 0; i < count; ++i) {
                SoNode *const child = (*children)[i];
                if (named.kind != NodeOrigin::Scene)
                    foreign.push_back({child, named});
                else if (SoProtoInstance::findProtoInstance(child))
                    foreign.push_back({child, fromPrototype(child)});
                else if (child->getRefCount() == 1 || own.insert(child).second)
                    open.push_back(child);
            }
        }
        spread(foreign, own);
    }

    void spread(std::vector<Entry> &foreign, const std::unordered_set<const SoNode *> &own)
    {
        while (!foreign.empty()) {
            const Entry entry = foreign.back();
            foreign.pop_back();
            if (own.count(entry.node) > 0 || !m_origins.emplace(entry.node, entry.origin).second)
                continue;
            const NodeOrigin named = NodeOrigin::namedBy(entry.node);
            for (SoNode *const child : childrenOf(entry.node)) {
                const NodeOrigin called = fromPrototype(child);
                const bool isNamed = named.kind != NodeOrigin::Scene;
                foreign.push_back({child, called.kind != NodeOrigin::Scene ? called : isNamed ? named : entry.origin});
            }
        }
    }

    std::unordered_map<const SoNode *, NodeOrigin> m_origins;
    bool m_isKnown = false;
};

ForeignNodes &foreignNodes()
{
    static ForeignNodes nodes;
    return nodes;
}

} // namespace

NodeOrigin NodeOrigin::namedBy(SoNode *node)
{
    if (node->isOfType(SoFile::getClassTypeId())) {
        auto *const file = static_cast<SoFile *>(node);
        return fromFile(file->getFullName(), file->name.getValue());
    }
    if (node->isOfType(SoWWWInline::getClassTypeId())) {
        auto *const file = static_cast<SoWWWInline *>(node);
        return fromFile(file->getFullURLName(), file->name.getValue());
    }
    if (node->isOfType(SoVRMLInline::getClassTypeId())) {
        auto *const file = static_cast<SoVRMLInline *>(node);
        return fromFile(file->getFullURLName(), firstOf(file->url));
    }
    return {};
}

void NodeOrigin::setScene(SoNode *root)
{
    foreignNodes().root = root;
    foreignNodes().forget();
}

NodeOrigin NodeOrigin::of(const SoFieldContainer *node)
{
    if (!node || !node->isOfType(SoNode::getClassTypeId()))
        return {};
    return foreignNodes().originOf(static_cast<const SoNode *>(node));
}

QString NodeOrigin::obstacle() const
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("NodeOrigin", text); };
    switch (kind) {
    case File:
        return tr("it was read from %1, which is not saved with this scene").arg(name);
    case Prototype:
        return tr("it is made from the PROTO %1, of which only the call is saved").arg(name);
    default:
        return {};
    }
}
