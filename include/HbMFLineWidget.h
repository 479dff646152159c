// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFLINEWIDGET_H
#define HBMFLINEWIDGET_H

#include <HbMFieldWidget.h>

#include <Inventor/SbString.h>

/// Edits any field of many values as text in file notation; what does not parse is left to the field's parser.
class HARBORAPI_EXPORT HbMFLineWidget : public HbMFieldWidget
{
public:
    HbMFLineWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                   Qt::WindowFlags flags);
    HbMFLineWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                   const char *name, Qt::WindowFlags flags);
    ~HbMFLineWidget() override;

    bool checkField(SoField *field) override;
    QString getFieldValue(int row, int col) const override;
    QString getCellText(int row, int col, int limit) const override;
    void set1Value(int row, int col, QString text) override;
    void swapRows(int first, int second) override;

    /// The value as text; empty outside the field.
    virtual SbString getSingleFieldValue(int row, int col) const;
    /// Writes a value; outside the field nothing.
    virtual void setSingleFieldValue(SbString value, int row, int col);

private:
    void initClass();
};

#endif
