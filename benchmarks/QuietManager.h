// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef QUIETMANAGER_H
#define QUIETMANAGER_H

#include <HbFieldEditorCommandManager.h>

/// Hears every edit and does nothing.
class QuietManager : public HbFieldEditorCommandManager
{
public:
    void mfieldSwapRows(int, int) override { }
    void mfieldSwapColumns(int, int) override { }
    void mfieldDeleteRows(int, int) override { }
    void mfieldAddRows(int, int) override { }
    void mfieldSet1Value(int, int, QString, SbString *) override { }
    void mfieldSetValue(int, const void *) override { }
    void sfieldSetValue(SbString *) override { }
    void fieldSetDefaultValue() override { }
    void fieldSetIgnored(bool) override { }
};

#endif
