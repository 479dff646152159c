// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "RowBox.h"

#include <HbMFieldTable.h>
#include <HbMFieldWidget.h>

#include <QIntValidator>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

#include <limits>

RowBox::RowBox(HbMFieldWidget &widget, HbMFieldTable &table)
    : QObject(&widget), m_table(table), m_box(*widget.accessBox())
{
    // the library's own connections count rows from 0
    disconnect(&m_table, nullptr, &m_box, nullptr);
    disconnect(&m_box, nullptr, &m_table, nullptr);
    connect(&m_table, &QTableWidget::currentCellChanged, this, &RowBox::show);
    connect(&m_box, QOverload<int>::of(&QSpinBox::valueChanged), this, &RowBox::goTo);
    auto *const edit = m_box.findChild<QLineEdit *>();
    edit->setValidator(new QIntValidator(0, std::numeric_limits<int>::max(), edit)); // the box's swallows digits
    connect(edit, &QLineEdit::textEdited, this, [this](const QString &text) {
        if (text.toLongLong() > m_table.rowCount())
            goToLast();
    });
}

void RowBox::show()
{
    const QSignalBlocker quiet(m_box);
    m_box.setValue(m_table.currentRow() + 1);
    m_box.setToolTip(tr("Row, 1 to %1").arg(m_table.rowCount()));
}

void RowBox::goToLast()
{
    goTo(m_table.rowCount());
    show(); // in place of what was typed
}

void RowBox::goTo(int number)
{
    const int row = number - 1;
    if (row < 0 || row >= m_table.rowCount())
        return;
    m_table.setCurrentCell(row, qMax(m_table.currentColumn(), 0));
    m_table.scrollTo(m_table.currentIndex());
}
