// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROWBOX_H
#define ROWBOX_H

#include <QObject>

class HbMFieldTable;
class HbMFieldWidget;
class QSpinBox;

/// Lets the box beside a table tell the number that the current row's header tells, and go to the row that is entered.
class RowBox : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the editor.
    RowBox(HbMFieldWidget &widget, HbMFieldTable &table);

    /// Tells the current row.
    void show();
    QSpinBox &box() const { return m_box; }

private:
    void goTo(int number);
    void goToLast();

    HbMFieldTable &m_table;
    QSpinBox &m_box;
};

#endif
