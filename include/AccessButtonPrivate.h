// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ACCESSBUTTONPRIVATE_H
#define ACCESSBUTTONPRIVATE_H

#include <harborapi_export.h>

#include <QSpinBox>

/**
 * The box that scrolls a table to a row.
 *
 * It is no stop for Tab, but a click into it starts typing.
 */
class HARBORAPI_EXPORT AccessButtonPrivate : public QSpinBox
{
public:
    /// A null @p name gives the object name "AccessButtonPrivate".
    AccessButtonPrivate(QWidget *parent, const char *name);
    AccessButtonPrivate(int minimum, int maximum, int step, QWidget *parent, const char *name);

    /// Shows @p row + 1; hides the slot of QSpinBox, which a connection reaches all the same.
    void setValue(int row);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// Return reports the value once more.
    void keyPressEvent(QKeyEvent *event) override;
};

#endif
