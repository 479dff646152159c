// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneItem.h"

#include "CoinRef.h"
#include "FieldText.h"
#include "SceneTree.h"

#include <Inventor/SbName.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoNode.h>

#include <QIcon>
#include <QPainter>

namespace
{

bool isUnknown(const SoNode *node)
{
    static const SbName unknown("UnknownNode");
    return node->getTypeId().getName() == unknown;
}

/// Two sheets, one behind the other.
QIcon sharedIcon(const QColor &colour)
{
    static QIcon icon;
    static QColor iconColour;
    if (icon.isNull() || iconColour != colour) {
        QPixmap pixmap(32, 32);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setPen(QPen(colour, 3));
        painter.drawRect(11, 4, 16, 16);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.fillRect(3, 10, 20, 20, Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.drawRect(5, 12, 16, 16);
        painter.end();
        icon = QIcon(pixmap);
        iconColour = colour;
    }
    return icon;
}

} // namespace

SceneItem::SceneItem(SoNode *node) : m_node(coinRef(node))
{
    updateIndicator();
}

void SceneItem::updateIndicator()
{
    const SoChildList *children = m_node->getChildren();
    const bool any = children && children->getLength() > 0;
    setChildIndicatorPolicy(any ? ShowIndicator : DontShowIndicator);
}

QVariant SceneItem::data(int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return column == Type ? typeName() : QString::fromLatin1(m_node->getName().getString());
    case Qt::ToolTipRole:
        return explanation();
    case Qt::AccessibleTextRole:
        return column == Type && isShared() ? SceneTree::tr("%1, shared").arg(typeName())
                                            : data(column, Qt::DisplayRole);
    case Qt::DecorationRole:
        if (column == Type && isShared())
            return sharedIcon(treeWidget()->palette().color(QPalette::Text));
        return {};
    case Qt::FontRole:
        if (isUnknown(node())) {
            QFont font = treeWidget()->font();
            font.setItalic(true);
            return font;
        }
        return {};
    default:
        return QTreeWidgetItem::data(column, role);
    }
}

QString SceneItem::typeName() const
{
    return FieldText::typeName(*m_node);
}

QString SceneItem::explanation() const
{
    QStringList lines{typeName()};
    if (isUnknown(node()))
        lines.append(SceneTree::tr("A type that is not known here; the node is kept and saved as it was read."));
    if (isShared()) {
        const int places = static_cast<SceneTree *>(treeWidget())->placesOf(node());
        lines.append(
            SceneTree::tr("Shared: stands in %1 places of the scene; a change shows in all of them.").arg(places));
    }
    return lines.join(QLatin1Char('\n'));
}

bool SceneItem::isShared() const
{
    const auto *tree = static_cast<const SceneTree *>(treeWidget());
    return tree && tree->placesOf(node()) > 1;
}
