// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef COMPONENTS_H
#define COMPONENTS_H

#include "Editors/FieldEditorSettings.h"
#include "support/NumberText.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>
#include <array>

/// What the editors share that show a value as a row of labelled controls, one per component.
namespace Components
{
/// A control in the edition area, of the fixed height that @p heightKey names in the layout settings.
template <class Control> Control *newControl(QWidget *area, const char *name, const char *heightKey)
{
    auto *const control = new Control(area);
    control->setObjectName(QLatin1String(name));
    control->setFixedHeight(nscsettings_fieldEditor(QLatin1String(heightKey)));
    return control;
}

/// An edit for a float, typed with at most 6 decimals.
QLineEdit *newFloatEdit(QWidget *area, const char *name);

/// Puts a label and its control into @p component and that at the right end of @p row.
void add(QBoxLayout *component, QLabel *label, QWidget *control, QHBoxLayout *row);

/// Names the control for screen readers as its label names it for the eye.
void setLabel(QLabel *label, QWidget *control, const QString &text, const QString &plainText);

template <std::size_t count> using Edits = std::array<QLineEdit *, count>;

template <std::size_t count> bool isEdited(const Edits<count> &edits)
{
    return std::any_of(edits.begin(), edits.end(), [](const QLineEdit *edit) { return edit->isModified(); });
}

/// Shows the start of every text.
template <std::size_t count> void rewind(const Edits<count> &edits)
{
    for (QLineEdit *const edit : edits)
        edit->setCursorPosition(0);
}

template <std::size_t count> void show(const Edits<count> &edits, const float *numbers)
{
    for (QLineEdit *const edit : edits)
        edit->setText(NumberText::fromFloat(*numbers++));
    rewind(edits);
}

/// Text that is no number counts as 0.
template <std::size_t count> std::array<float, count> numbers(const Edits<count> &edits)
{
    std::array<float, count> numbers;
    std::transform(edits.begin(), edits.end(), numbers.begin(),
                   [](const QLineEdit *edit) { return NumberText::toFloat(edit->text()); });
    return numbers;
}
} // namespace Components

#endif
