// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBTABLEPOPUPLINEEDIT_H
#define HBTABLEPOPUPLINEEDIT_H

#include <harborapi_export.h>

#include <QLineEdit>

class HbTablePopupWidget;

/// An edit of an HbTablePopupWidget's grid.
class HARBORAPI_EXPORT HbTablePopupLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// @p index is the edit's place in the grid, row by row. A null @p name gives the object name
    /// "HbTablePopupLineEdit".
    HbTablePopupLineEdit(int index, HbTablePopupWidget *owner, QWidget *parent, const char *name);
    ~HbTablePopupLineEdit() override;

public Q_SLOTS:
    /// Reports the grid's value; the argument is not used.
    void setCurrentValue(QString text);

private:
    HbTablePopupWidget *m_owner;
};

#endif
