// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFSTRINGWIDGET_H
#define HBMFSTRINGWIDGET_H

#include <HbMFieldWidget.h>

#include <Inventor/SbString.h>

/// Edits an SoMFString; the text is the value itself, without quotes.
class HARBORAPI_EXPORT HbMFStringWidget : public HbMFieldWidget
{
public:
    HbMFStringWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                     Qt::WindowFlags flags);
    HbMFStringWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                     const char *name, Qt::WindowFlags flags);
    ~HbMFStringWidget() override;

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
