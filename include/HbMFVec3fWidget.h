// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFVEC3FWIDGET_H
#define HBMFVEC3FWIDGET_H

#include <HbMFieldWidget.h>

/// Edits an SoMFVec3f: x, y and z.
class HARBORAPI_EXPORT HbMFVec3fWidget : public HbMFieldWidget
{
public:
    HbMFVec3fWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbMFVec3fWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);
    ~HbMFVec3fWidget() override;

    bool checkField(SoField *field) override;
    QString getFieldValue(int row, int col) const override;
    void set1Value(int row, int col, QString text) override;
    void swapRows(int first, int second) override;

    /// A component; 0 outside the field.
    virtual float getSingleFieldValue(int row, int col) const;
    /// Writes a component; outside the field nothing.
    virtual void setSingleFieldValue(float value, int row, int col);

protected:
    /// For a table of another kind.
    HbMFVec3fWidget(const char *fieldType, int tableKind, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);

private:
    void initClass();
};

#endif
