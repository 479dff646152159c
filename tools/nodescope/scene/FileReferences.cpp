// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FileReferences.h"

#include "Containment.h"
#include "NodeOrigin.h"
#include "ScenePath.h"

#include <Inventor/fields/SoMFString.h>
#include <Inventor/fields/SoSFString.h>
#include <Inventor/nodes/SoNode.h>

#include <QFile>
#include <QFileInfo>

namespace
{

void add(const SbString &text, QStringList *names)
{
    const QString name = QFile::decodeName(text.getString());
    const bool isAddress = name.contains(QLatin1Char(':')); // or a script's text
    if (!name.isEmpty() && !isAddress && QFileInfo(name).isRelative() && !names->contains(name))
        names->append(name);
}

void addFrom(const SoField *field, QStringList *names)
{
    if (!field)
        return;
    if (field->isOfType(SoSFString::getClassTypeId()))
        add(static_cast<const SoSFString *>(field)->getValue(), names);
    if (!field->isOfType(SoMFString::getClassTypeId()))
        return;
    const auto &texts = static_cast<const SoMFString &>(*field);
    for (int i = 0; i < texts.getNum(); ++i)
        add(texts[i], names);
}

} // namespace

QStringList relativeReferences(SoNode *root)
{
    QStringList names;
    OpenNodes<SoNode> open;
    open.add(root);
    while (SoNode *const node = open.take()) {
        if (NodeOrigin::of(node).kind != NodeOrigin::Scene)
            continue;
        for (const char *field : {"filename", "filenames", "url"})
            addFrom(node->getField(field), &names);
        if (NodeOrigin::namedBy(node).kind != NodeOrigin::Scene)
            addFrom(node->getField("name"), &names);
        for (SoNode *const child : childrenOf(node))
            open.add(child);
    }
    return names;
}
