// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TYPEDNUMBERS_H
#define TYPEDNUMBERS_H

#include "TypedNumber.h"

#include <vector>

class HbFieldEditors;
class SoField;

/// The typed numbers of one editor: those of a single value, of a popup's grid and of the cells that are open.
class TypedNumbers : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The edits of an editor of the library's own; those of fields that hold no numbers are left alone.
    void adopt(HbFieldEditors &editor, const SoField &field);
    /// What was opened over a cell of a table, for a number of this form.
    void adoptCell(QWidget &cellEditor, const NumberForm &form);

    /// To be called when the editor has set texts: it may have set validators, too.
    void keepValidators();
    /// Makes plain numbers of all that was typed. False, and says why, where one cannot be read.
    bool settle();
    /// Commits what the editor itself would not when it is left in this moment.
    void finish();
    /// The numbers are committed.
    void setCommitted();
    bool hasGrid() const { return m_hasGrid; }

Q_SIGNALS:
    void refused(const QString &why);
    void dropped();
    void cellDropped();
    void entered();
    void stepped(TypedNumber *number);

private:
    TypedNumber *add(QLineEdit &edit, const NumberForm &form, TypedNumber::Place place);

    std::vector<QPointer<TypedNumber>> m_numbers;
    bool m_hasGrid = false;
};

#endif
