// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFCOLORWIDGET_H
#define HBMFCOLORWIDGET_H

#include <HbMFVec3fWidget.h>

/// Edits an SoMFColor: a swatch and the components, of which only those from 0 to 1 are written.
class HARBORAPI_EXPORT HbMFColorWidget : public HbMFVec3fWidget
{
public:
    HbMFColorWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                    Qt::WindowFlags flags);
    HbMFColorWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                    const char *name, Qt::WindowFlags flags);
    ~HbMFColorWidget() override;

    bool checkField(SoField *field) override;
    void swapRows(int first, int second) override;
    /// @p data is three floats.
    void setValue(int row, const void *data) override;
    float getSingleFieldValue(int row, int col) const override;
    void setSingleFieldValue(float value, int row, int col) override;

private:
    void initClass();
};

#endif
