// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFPLANEWIDGET_H
#define HBMFPLANEWIDGET_H

#include <HbMFieldWidget.h>

/// Edits an SoMFPlane: the normal, which the field normalises, and the distance from the origin.
class HARBORAPI_EXPORT HbMFPlaneWidget : public HbMFieldWidget
{
public:
    HbMFPlaneWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbMFPlaneWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);
    ~HbMFPlaneWidget() override;

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
