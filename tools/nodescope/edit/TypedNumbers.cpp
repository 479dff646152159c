// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TypedNumbers.h"

#include "AngleFields.h"

#include <HbFieldEditors.h>
#include <HbTablePopupLineEdit.h>

#include <Inventor/fields/SoMField.h>

#include <QLayout>

#include <algorithm>

namespace
{
bool isGrid(const QLineEdit *edit)
{
    return qobject_cast<const HbTablePopupLineEdit *>(edit);
}
/// In a popup an edit can be as wide as the longest float.
void widen(QLineEdit &edit)
{
    const QFontMetrics metrics(edit.font());
    const int around = edit.sizeHint().width() - metrics.horizontalAdvance(QLatin1Char('x')) * 17; // as Qt counts
    edit.setMinimumWidth(metrics.horizontalAdvance(QStringLiteral("-1.2345678e-38")) + around);
    edit.parentWidget()->layout()->activate();
}
} // namespace

TypedNumber *TypedNumbers::add(QLineEdit &edit, const NumberForm &form, TypedNumber::Place place)
{
    auto *const number = new TypedNumber(edit, form, place);
    m_numbers.erase(std::remove(m_numbers.begin(), m_numbers.end(), nullptr), m_numbers.end());
    m_numbers.emplace_back(number);
    connect(number, &TypedNumber::refused, this, &TypedNumbers::refused);
    connect(number, &TypedNumber::entered, this, &TypedNumbers::entered);
    connect(number, &TypedNumber::stepped, this, [this, number] { Q_EMIT stepped(number); });
    return number;
}

void TypedNumbers::adopt(HbFieldEditors &editor, const SoField &field)
{
    const NumberForm form = NumberForm::of(field);
    if (form.kind == NumberForm::Kind::None)
        return;
    const bool hasRows = field.isOfType(SoMField::getClassTypeId());
    QList<QLineEdit *> edits = editor.findChildren<QLineEdit *>(); // in the order of the components
    const auto isOther = [&](const QLineEdit *edit) {
        return edit->isReadOnly() || !edit->isEnabledTo(&editor) || hasRows != isGrid(edit);
    };
    edits.erase(std::remove_if(edits.begin(), edits.end(), isOther), edits.end());
    m_hasGrid = hasRows && !edits.isEmpty();
    for (int i = 0; i < edits.size(); ++i) {
        if (edits[i]->parentWidget()->isWindow())
            widen(*edits[i]);
        NumberForm part = edits.size() > 1 ? form.component() : form;
        part.isAngle = AngleFields::isAngle(field, i);
        auto *const number = add(*edits[i], part, hasRows ? TypedNumber::Place::Grid : TypedNumber::Place::Field);
        connect(number, &TypedNumber::dropped, this, &TypedNumbers::dropped);
    }
}

void TypedNumbers::adoptCell(QWidget &cellEditor, const NumberForm &form)
{
    auto *const line = qobject_cast<QLineEdit *>(&cellEditor);
    QLineEdit *const edit = line ? line : cellEditor.findChild<QLineEdit *>();
    if (!edit || form.kind == NumberForm::Kind::None || edit->findChild<TypedNumber *>())
        return;
    auto *const number = add(*edit, form, line ? TypedNumber::Place::Cell : TypedNumber::Place::Field);
    connect(number, &TypedNumber::dropped, this, &TypedNumbers::cellDropped, Qt::QueuedConnection);
}

void TypedNumbers::keepValidators()
{
    for (TypedNumber *const number : m_numbers)
        if (number)
            number->keepValidator();
}

bool TypedNumbers::settle()
{
    return std::all_of(m_numbers.begin(), m_numbers.end(),
                       [](TypedNumber *number) { return !number || number->settle(); });
}

void TypedNumbers::finish()
{
    if (settle())
        for (const QPointer<TypedNumber> &number : std::vector<QPointer<TypedNumber>>(m_numbers))
            if (number && number->isPending() && number->isCommittedByTool())
                number->commit();
}

void TypedNumbers::setCommitted()
{
    for (TypedNumber *const number : m_numbers)
        if (number)
            number->setCommitted();
}
