// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFVEC2SWIDGET_H
#define HBMFVEC2SWIDGET_H

#include <HbMFieldWidget.h>

/// Edits an SoMFVec2s: x and y; its cells take any text.
class HARBORAPI_EXPORT HbMFVec2sWidget : public HbMFieldWidget
{
public:
    HbMFVec2sWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbMFVec2sWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);
    ~HbMFVec2sWidget() override;

    bool checkField(SoField *field) override;
    QString getFieldValue(int row, int col) const override;
    void set1Value(int row, int col, QString text) override;
    void swapRows(int first, int second) override;

    /// A component; 0 outside the field.
    virtual short getSingleFieldValue(int row, int col) const;
    /// Writes a component; outside the field nothing.
    virtual void setSingleFieldValue(short value, int row, int col);

private:
    void initClass();
};

#endif
