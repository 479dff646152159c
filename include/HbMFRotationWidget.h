// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFROTATIONWIDGET_H
#define HBMFROTATIONWIDGET_H

#include <HbMFieldWidget.h>

/// Edits an SoMFRotation: the components of the quaternion, the last of which cannot be edited.
class HARBORAPI_EXPORT HbMFRotationWidget : public HbMFieldWidget
{
public:
    HbMFRotationWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                       Qt::WindowFlags flags);
    HbMFRotationWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                       const char *name, Qt::WindowFlags flags);
    ~HbMFRotationWidget() override;

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
