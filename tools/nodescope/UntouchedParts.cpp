// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "UntouchedParts.h"

#include "NumberParts.h"

#include <HbFieldEditors.h>
#include <HbSFColorWidget.h>

#include <QLineEdit>

#include <Inventor/fields/SoField.h>

#include <cmath>
#include <cstring>

namespace
{
/// As the editors read it.
float typed(const QString &text)
{
    bool converted = false;
    const float number = text.toFloat(&converted);
    return converted ? number : 0;
}

/// An editor that has refreshed itself shows 6 digits.
bool isUntouched(const QLineEdit &edit, float number)
{
    const QString text = edit.text();
    return text == NumberParts::shortest(number)
        || (!edit.isModified() && text == QString::number(static_cast<double>(number), 'g', 6));
}

} // namespace

bool isSameLevel(float chosen, float before)
{
    constexpr float whole = 255;
    return std::round(chosen * whole) == std::trunc(before * whole);
}

NumberParts::Numbers numbersIn(const HbFieldEditors &editor, NumberParts::Numbers before)
{
    const QList<QLineEdit *> edits = NumberParts::editsIn(editor);
    if (edits.size() != static_cast<int>(before.size()))
        return {};
    const bool isColor = dynamic_cast<const HbSFColorWidget *>(&editor);
    for (std::size_t i = 0; i < before.size(); ++i) {
        const QLineEdit &edit = *edits[static_cast<int>(i)];
        const float number = typed(edit.text());
        const bool isKept = isColor && !edit.isModified() && isSameLevel(number, before[i]);
        if (!isKept && !isUntouched(edit, before[i]))
            before[i] = number;
    }
    return before;
}

void keepUntouchedParts(const HbFieldEditors &editor, const SoField &before, SoField &edited)
{
    const NumberParts::Numbers shown = NumberParts::of(before);
    const NumberParts::Numbers numbers = numbersIn(editor, shown);
    if (numbers.empty())
        return;
    const bool isUntouched = std::memcmp(numbers.data(), shown.data(), shown.size() * sizeof(float)) == 0;
    if (isUntouched)
        edited.copyFrom(before);
    else
        NumberParts::set(edited, numbers);
}
