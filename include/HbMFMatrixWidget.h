// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFMATRIXWIDGET_H
#define HBMFMATRIXWIDGET_H

#include <HbTablePopupWidget.h>

/**
 * Edits an SoMFMatrix in a grid of four by four. Each row of the table shows the text of the whole field.
 *
 * The first four edits show the first elements of the matrix rows, deliberately, the others the element at their
 * own place; what is written is the grid row by row, with the value's own element wherever the text is still the one
 * filled in.
 */
class HARBORAPI_EXPORT HbMFMatrixWidget : public HbTablePopupWidget
{
public:
    HbMFMatrixWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                     Qt::WindowFlags flags);
    HbMFMatrixWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                     const char *name, Qt::WindowFlags flags);
    ~HbMFMatrixWidget() override;

    bool checkField(SoField *field) override;
    QString getFieldValue(int row, int col) const override;
    QString getCellText(int row, int col, int limit) const override;
    QString getPopupValue(int row, int index) override;
    /// Takes the value from the grid; column and text are not used.
    void set1Value(int row, int col, QString text) override;
    void swapRows(int first, int second) override;

private:
};

#endif
