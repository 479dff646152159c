// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CellSupply.h"

#include "CellSelection.h"

#include <HbMFieldTable.h>
#include <HbMFieldWidget.h>
#include <HbSlider.h>

#include <QSlider>

CellSupply::CellSupply(HbMFieldWidget &widget, HbMFieldTable &table) : m_widget(widget), m_table(table) { }

/// A slider follows its value, but for one that is being moved or typed in.
bool CellSupply::isInUse(const QModelIndex &cell) const
{
    const QWidget *const editor = m_table.indexWidget(cell);
    const auto *const slider = qobject_cast<const HbSlider *>(editor);
    return slider ? slider->isEdited() || slider->findChild<QSlider *>()->isSliderDown() : editor != nullptr;
}

void CellSupply::supply()
{
    const QModelIndex cell = m_table.currentIndex();
    if (m_supplied.isValid() && m_supplied != cell)
        delete m_table.takeItem(m_supplied.row(), m_supplied.column());
    m_supplied = cell;
    if (!cell.isValid() || isInUse(cell))
        return;
    const QString text = m_widget.getFieldValue(cell.row(), CellSelection::componentOf(m_table, cell.column()));
    if (cell.data(Qt::EditRole).toString() != text)
        m_table.model()->setData(cell, text, Qt::EditRole);
}
