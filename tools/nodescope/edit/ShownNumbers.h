// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SHOWNNUMBERS_H
#define SHOWNNUMBERS_H

#include "FieldSnapshot.h"
#include "NumberParts.h"

#include <QList>
#include <QObject>
#include <QPointer>

class HbFieldEditors;
class QLineEdit;
class SoField;

/**
 * Shows the floats of a value with as few digits as read back to the same bits, where the library's editor shows 6.
 * Where the value does not keep the typed numbers, as a rotation's axis, they are shown as they were typed.
 *
 * To be shown anew after each refresh of the editor. Belongs to the editor.
 */
class ShownNumbers : public QObject
{
public:
    static bool canShow(const SoField *field);
    explicit ShownNumbers(HbFieldEditors &editor);

    /// The field stays the one whose numbers are shown when the editor opens its grid; null for none.
    void show(const SoField *field);

    /// What show() shows of its field: the numbers that were typed while they still make the value.
    NumberParts::Numbers numbers() const;
    /// The edit that the numbers are from has made the field's value of them.
    void keep(const NumberParts::Numbers &typed);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const SoField *m_field = nullptr;
    NumberParts::Numbers m_typed;
    std::optional<FieldSnapshot> m_made; ///< the value of the typed numbers
    QList<QPointer<QLineEdit>> m_edits;
};

#endif
