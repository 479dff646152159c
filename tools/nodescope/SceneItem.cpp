// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SceneItem.h"

#include "CoinRef.h"
#include "FieldText.h"
#include "NodeOrigin.h"
#include "SceneTree.h"
#include "ShapeGuard.h"

#include <Inventor/SbName.h>
#include <Inventor/nodes/SoNode.h>

#include <QIcon>
#include <QPainter>
#include <QStyle>

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

SceneItem::SceneItem(SoNode *node, const QString &field) : m_node(coinRef(node)), m_field(field)
{
    updateIndicator();
}

void SceneItem::updateIndicator()
{
    setChildIndicatorPolicy(hasChildren(m_node.get()) ? ShowIndicator : DontShowIndicator);
}

QVariant SceneItem::data(int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return column == Type ? typeName() : name();
    case Qt::ToolTipRole:
        return explanation();
    case Qt::AccessibleTextRole:
        if (column == Type && isLeftOut())
            return SceneTree::tr("%1, not drawn").arg(typeName());
        return column == Type && isShared() ? SceneTree::tr("%1, shared").arg(typeName())
                                            : data(column, Qt::DisplayRole);
    case Qt::DecorationRole:
        if (column == Type && isLeftOut())
            return treeWidget()->style()->standardIcon(QStyle::SP_MessageBoxWarning);
        if (column == Type && isShared())
            return sharedIcon(treeWidget()->palette().color(QPalette::Text));
        return {};
    case Qt::ForegroundRole:
        if (NodeOrigin::of(node()).kind != NodeOrigin::Scene)
            return treeWidget()->palette().brush(QPalette::Disabled, QPalette::Text);
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
    const QString type = FieldText::typeName(*m_node);
    return m_field.isEmpty() ? type : SceneTree::tr("%1 in %2").arg(type, m_field);
}

/// With the file that the children come from.
QString SceneItem::name() const
{
    const QString name = QString::fromLatin1(m_node->getName().getString());
    const NodeOrigin origin = NodeOrigin::namedBy(node());
    if (origin.kind == NodeOrigin::Scene)
        return name;
    return (name.isEmpty() ? name : name + QLatin1Char(' ')) + QChar(0x2190) + QLatin1Char(' ') + origin.name;
}

QString SceneItem::explanation() const
{
    QStringList lines{typeName()};
    if (isUnknown(node()))
        lines.append(SceneTree::tr("A type that is not known here; the node is kept and saved as it was read."));
    if (isLeftOut())
        lines.append(SceneTree::tr("Not drawn: %1.").arg(ShapeGuard::obstacle(node())));
    if (isShared()) {
        const int places = static_cast<SceneTree *>(treeWidget())->placesOf(node());
        lines.append(
            SceneTree::tr("Shared: stands in %1 places of the scene; a change shows in all of them.").arg(places));
    }
    if (const NodeOrigin origin = NodeOrigin::namedBy(node()); origin.kind != NodeOrigin::Scene)
        lines.append(SceneTree::tr("The nodes below it are read from %1.").arg(origin.name));
    if (const NodeOrigin origin = NodeOrigin::of(node()); origin.kind != NodeOrigin::Scene)
        lines.append(SceneTree::tr("Cannot be edited here: %1.").arg(origin.obstacle()));
    return lines.join(QLatin1Char('\n'));
}

bool SceneItem::isLeftOut() const
{
    return !ShapeGuard::obstacle(node()).isEmpty();
}

bool SceneItem::isShared() const
{
    const auto *tree = static_cast<const SceneTree *>(treeWidget());
    return tree && tree->placesOf(node()) > 1;
}
