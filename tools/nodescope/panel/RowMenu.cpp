// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RowMenu.h"

#include "CoinRef.h"
#include "FieldClipboard.h"
#include "FieldRow.h"
#include "FieldText.h"
#include "NodeOrigin.h"
#include "NodesInFields.h"

#include <Inventor/fields/SoField.h>
#include <Inventor/nodes/SoNode.h>

RowMenu::RowMenu(FieldRow &row) : QMenu(row.widget()), m_row(row)
{
    setObjectName(QStringLiteral("rowMenu"));
    setAttribute(Qt::WA_DeleteOnClose);
    addValue();
    addSeparator();
    addState();
    addSeparator();
    addPlaces();
}

void RowMenu::addValue()
{
    addAction(tr("&Copy Value"), &m_row, &FieldRow::copyValue);
    QAction *const paste = addAction(tr("&Paste Value"), &m_row, &FieldRow::pasteValue);
    paste->setEnabled(!m_row.isLocked() && !FieldClipboard::isEmpty());
}

void RowMenu::addState()
{
    QAction *const standard = addAction(tr("Set to &Default"), &m_row, &FieldRow::setToDefault);
    standard->setEnabled(m_row.isChanged());
    QAction *const ignore = addAction(tr("&Ignore"));
    ignore->setCheckable(true);
    ignore->setEnabled(NodeOrigin::of(m_row.field()->getContainer()).kind == NodeOrigin::Scene);
    ignore->setChecked(m_row.field()->isIgnored());
    connect(ignore, &QAction::triggered, &m_row, &FieldRow::setIgnored);
}

void RowMenu::addPlaces()
{
    constexpr int mostPlaces = 20;
    int left = mostPlaces;
    for (SoNode *const node : nodesAt(*m_row.field()))
        if (left-- > 0)
            addPlace(node);
}

void RowMenu::addPlace(SoNode *node)
{
    const std::shared_ptr<SoNode> kept = coinRef(node);
    addAction(tr("&Go to %1").arg(FieldText::nodeName(*node)), &m_row,
              [this, kept] { Q_EMIT m_row.nodeWanted(kept.get()); });
}
