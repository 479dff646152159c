// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBFIELDEDITORS_H
#define HBFIELDEDITORS_H

#include <HbEditors.h>

class QString;

/**
 * The contract between a host and the editor of one field.
 *
 * Table operations (rows, columns, single values) are ignored by editors of single values.
 */
class HARBORAPI_EXPORT HbFieldEditors : public HbEditors
{
public:
    HbFieldEditors(QWidget *parent, Qt::WindowFlags flags);
    ~HbFieldEditors() override;

    /// Edits the field that the editor is registered for (none if it is not registered for a field).
    void updateEditor() override;

    /// Names the field to edit, or null for none; the field is not owned. Returns whether it was taken.
    virtual bool setField(SoField *field) = 0;
    /// Shows the field's present value. Safe without a field.
    virtual void refresh() = 0;
    /// Switches the automatic refresh of a table off and on.
    virtual void setRefresh(bool enabled) = 0;
    /// Exchanges two rows, counted from 0.
    virtual void swapRows(int first, int second) = 0;
    /// Exchanges two columns, counted from 0.
    virtual void swapColumns(int first, int second) = 0;
    /// Sets one cell; rows and columns count from 0, the text is in the field's own notation.
    virtual void set1Value(int row, int col, QString text) = 0;
    /// Sets one row from data in a form that the concrete editor fixes.
    virtual void setValue(int row, const void *data) = 0;
    /// Writes what the editor shows into the field. Safe without a field.
    virtual void applyChanges() = 0;

    /// Whether the field died: from then on the editor reports nothing until the next setField().
    bool hasLostField() const;
};

#endif
