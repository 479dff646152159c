// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFColorTable.h>

#include "support/ColorChoice.h"

#include <HbFieldEditorCommandManager.h>
#include <HbMFColorTableItemDelegate.h>
#include <HbMFieldWidget.h>

HbMFColorTable::HbMFColorTable(HbFieldEditorCommandManager *commandManager, HbMFieldWidget *owner, const char *name)
    : HbMFieldTable(commandManager, owner, name)
{
    replaceDelegate(new HbMFColorTableItemDelegate(commandManager, owner, this));
    setCellType(RealCell);
    setDoubleEditorRange(0, 1);
    // after the click: Qt goes on with the table, which the host may delete while the dialog is open
    connect(this, &QTableWidget::cellClicked, this, &HbMFColorTable::getColorFromEditor, Qt::QueuedConnection);
}

HbMFColorTable::~HbMFColorTable() = default;

void HbMFColorTable::getColorFromEditor(int row, int col)
{
    const auto isRow = [this, row] { return row >= 0 && row < rowCount() && !m_owner->hasLostField(); };
    if (col != 0 || !isRow())
        return;
    const QPointer<HbMFColorTable> self(this);
    const QColor chosen = chooseColor(HbMFColorTableItemDelegate::colorOf(*m_owner, row), this);
    if (!self || !chosen.isValid() || !isRow())
        return;
    const auto component = [](int level) { return static_cast<float>(level) / 255.0F; };
    const float components[] = {component(chosen.red()), component(chosen.green()), component(chosen.blue())};
    if (m_commandManager)
        m_commandManager->mfieldSetValue(row, components);
    else
        m_owner->setValue(row, components);
}
