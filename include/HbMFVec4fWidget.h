// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFVEC4FWIDGET_H
#define HBMFVEC4FWIDGET_H

#include <HbMFieldWidget.h>

/// Edits an SoMFVec4f: x, y, z and w.
class HARBORAPI_EXPORT HbMFVec4fWidget : public HbMFieldWidget
{
public:
    HbMFVec4fWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbMFVec4fWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);
    ~HbMFVec4fWidget() override;

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
