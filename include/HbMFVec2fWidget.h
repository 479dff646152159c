// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFVEC2FWIDGET_H
#define HBMFVEC2FWIDGET_H

#include <HbMFieldWidget.h>

/// Edits an SoMFVec2f: x and y.
class HARBORAPI_EXPORT HbMFVec2fWidget : public HbMFieldWidget
{
public:
    HbMFVec2fWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbMFVec2fWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);
    ~HbMFVec2fWidget() override;

    bool checkField(SoField *field) override;
    QString getFieldValue(int row, int col) const override;
    void set1Value(int row, int col, QString text) override;
    void swapRows(int first, int second) override;

    /// A component; 0 outside the field.
    virtual float getSingleFieldValue(int row, int col) const;
    /// Writes a component; outside the field nothing.
    virtual void setSingleFieldValue(float value, int row, int col);

private:
    void initClass();
};

#endif
