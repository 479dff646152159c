// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef VALUETEXT_H
#define VALUETEXT_H

#include <HbFieldEditors.h>

class QLineEdit;

/// Shows a field as text that can be selected and copied but not changed: for types that have no editor.
/// The text of a large value is its start.
class ValueText : public HbFieldEditors
{
public:
    ValueText(const char *label, QWidget *parent);

    bool setField(SoField *field) override;
    void refresh() override;
    void setRefresh(bool) override { }
    void swapRows(int, int) override { }
    void swapColumns(int, int) override { }
    void set1Value(int, int, QString) override { }
    void setValue(int, const void *) override { }
    void applyChanges() override { }

private:
    SoField *m_field = nullptr;
    QLineEdit *m_text;
};

#endif
