// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef HBFIELDEDITORCOMMANDMANAGER_H
#define HBFIELDEDITORCOMMANDMANAGER_H

#include <harborapi_export.h>

#include <QObject>
#include <QString>

class SbString;

/**
 * Receives the edits of one field editor; the host implements it, typically with undo.
 *
 * An editor that has a manager leaves writing the field to it. The commands do not name the editor or the
 * field, so a manager serves one editor and knows which. It must not be used from another thread than the
 * editor's; the editor does not own it and copes with its death.
 *
 * Rows and columns count from 0, column -1 means no particular column. @c previousData, where it is not
 * null, is the field's value before the edit as text; the receiver owns it and deletes it.
 */
class HARBORAPI_EXPORT HbFieldEditorCommandManager : public QObject
{
    Q_OBJECT

public:
    explicit HbFieldEditorCommandManager(QObject *parent = nullptr);
    ~HbFieldEditorCommandManager() override;

public Q_SLOTS:
    /// Exchange two rows.
    virtual void mfieldSwapRows(int, int) = 0;
    /// Exchange two columns.
    virtual void mfieldSwapColumns(int, int) = 0;
    /// Delete @p numValues rows from @p topRow on.
    virtual void mfieldDeleteRows(int topRow, int numValues = 1) = 0;
    /// Insert @p numRows rows before @p row.
    virtual void mfieldAddRows(int row, int numRows) = 0;
    /// Set one cell to a text in the field's notation; a null text carries no value.
    virtual void mfieldSet1Value(int row, int col = -1, QString = QString(), SbString *previousData = nullptr) = 0;
    /// Set a row from data in the form that the calling editor fixes.
    virtual void mfieldSetValue(int row, const void *data) = 0;
    /// The value that the editor shows was committed; HbFieldEditors::applyChanges() writes it.
    virtual void sfieldSetValue(SbString *previousData = nullptr) = 0;
    /// Give the field its default value.
    virtual void fieldSetDefaultValue() = 0;
    /// Set or clear the field's ignore flag.
    virtual void fieldSetIgnored(bool) = 0;
};

#endif
