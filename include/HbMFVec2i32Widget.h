// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFVEC2I32WIDGET_H
#define HBMFVEC2I32WIDGET_H

#include <HbMFieldWidget.h>

/// Edits an SoMFVec2i32: x and y; its cells show, and accept no text, deliberately.
class HARBORAPI_EXPORT HbMFVec2i32Widget : public HbMFieldWidget
{
public:
    HbMFVec2i32Widget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                      Qt::WindowFlags flags);
    HbMFVec2i32Widget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                      const char *name, Qt::WindowFlags flags);
    ~HbMFVec2i32Widget() override;

    bool checkField(SoField *field) override;
    QString getFieldValue(int row, int col) const override;
    void set1Value(int row, int col, QString text) override;
    void swapRows(int first, int second) override;

    /// A component; 0 outside the field.
    virtual int getSingleFieldValue(int row, int col) const;
    /// Writes a component; outside the field nothing.
    virtual void setSingleFieldValue(int value, int row, int col);

private:
    void initClass();
};

#endif
