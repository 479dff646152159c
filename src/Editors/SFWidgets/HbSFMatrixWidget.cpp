// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFMatrixWidget.h>

#include "support/FieldWatch.h"
#include "support/GridValidators.h"
#include "support/NumberText.h"

#include <QLineEdit>

#include <Inventor/fields/SoSFMatrix.h>

namespace
{
constexpr int rows = 4;
constexpr int columns = 4;
} // namespace

HbSFMatrixWidget::HbSFMatrixWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                                   const char *name, Qt::WindowFlags flags)
    : HbPopupWidget(label, manager, rows, columns, parent, name ? name : "HbSFMatrixWidget", flags)
{
    setValidator(GridValidators::real6);
}

HbSFMatrixWidget::HbSFMatrixWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                   Qt::WindowFlags flags)
    : HbPopupWidget(manager, rows, columns, parent, name ? name : "HbSFMatrixWidget", flags)
{
    setValidator(GridValidators::real6);
}

HbSFMatrixWidget::~HbSFMatrixWidget() = default;

void HbSFMatrixWidget::refresh()
{
    const auto *const matrix = fieldCast<SoSFMatrix>(editedField());
    if (!matrix)
        return;
    const SbMatrix value = matrix->getValue();
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            editAt(row, column)->setText(NumberText::fromFloat(value[row][column]));
    revertCursorPosition();
    HbSFLineWidget::refresh();
}

void HbSFMatrixWidget::applyChanges()
{
    if (auto *const matrix = fieldCast<SoSFMatrix>(editedField())) {
        SbMatrix value;
        for (int row = 0; row < rows; ++row)
            for (int column = 0; column < columns; ++column)
                value[row][column] = NumberText::toFloat(editAt(row, column)->text());
        matrix->setValue(value);
    }
    HbSFLineWidget::refresh();
}
