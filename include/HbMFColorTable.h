// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBMFCOLORTABLE_H
#define HBMFCOLORTABLE_H

#include <HbMFieldTable.h>

/// The table of colours: a swatch that opens the colour dialog, and the components from 0 to 1.
class HARBORAPI_EXPORT HbMFColorTable : public HbMFieldTable
{
    Q_OBJECT

public:
    /// A null @p name gives the object name "HbMFieldTable".
    HbMFColorTable(HbFieldEditorCommandManager *commandManager, HbMFieldWidget *owner, const char *name);
    ~HbMFColorTable() override;

public Q_SLOTS:
    /// In column 0, asks for a colour and reports it as three floats, which live during the report only.
    void getColorFromEditor(int row, int col);
};

#endif
