// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Components.h"

#include "support/NumberValidator.h"

#include <limits>

QLineEdit *Components::newFloatEdit(QWidget *area, const char *name)
{
    constexpr double largest = std::numeric_limits<float>::max();
    constexpr int decimals = 6;
    auto *const edit = newControl<QLineEdit>(area, name, "SFVecLineHeight");
    edit->setValidator(new RealValidator(edit, -largest, largest, decimals));
    return edit;
}

void Components::add(QBoxLayout *component, QLabel *label, QWidget *control, QHBoxLayout *row)
{
    component->addWidget(label);
    component->addWidget(control);
    component->setSizeConstraint(QLayout::SetMinimumSize);
    row->addLayout(component);
}

void Components::setLabel(QLabel *label, QWidget *control, const QString &text, const QString &plainText)
{
    label->setText(text);
    control->setAccessibleName(plainText);
}
