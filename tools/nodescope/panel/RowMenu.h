// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROWMENU_H
#define ROWMENU_H

#include <QMenu>

class FieldRow;
class SoNode;

/// What can be done with a field as a whole: its menu opens on its label.
class RowMenu : public QMenu
{
    Q_OBJECT

public:
    /// The menu ends with the row.
    explicit RowMenu(FieldRow &row);

private:
    void addValue();
    void addState();
    void addPlaces();
    void addPlace(SoNode *node);

    FieldRow &m_row;
};

#endif
