// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFBox3sWidget.h>

#include "support/FieldWatch.h"
#include "support/GridValidators.h"

#include <QLineEdit>

#include <Inventor/fields/SoSFBox3s.h>

namespace
{
constexpr int rows = 2; // the minimum, the maximum
constexpr int columns = 3;
} // namespace

HbSFBox3sWidget::HbSFBox3sWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                                 const char *name, Qt::WindowFlags flags)
    : HbPopupWidget(label, manager, rows, columns, parent, name ? name : "HbSFBox3sWidget", flags)
{
    setValidator(GridValidators::short16);
}

HbSFBox3sWidget::HbSFBox3sWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                                 Qt::WindowFlags flags)
    : HbPopupWidget(manager, rows, columns, parent, name ? name : "HbSFBox3sWidget", flags)
{
    setValidator(GridValidators::short16);
}

HbSFBox3sWidget::~HbSFBox3sWidget() = default;

void HbSFBox3sWidget::refresh()
{
    const auto *const box = fieldCast<SoSFBox3s>(editedField());
    if (!box)
        return;
    const SbBox3s value = box->getValue();
    for (int column = 0; column < columns; ++column) {
        editAt(0, column)->setText(QString::number(value.getMin()[column]));
        editAt(1, column)->setText(QString::number(value.getMax()[column]));
    }
    revertCursorPosition();
    HbSFLineWidget::refresh();
}

void HbSFBox3sWidget::applyChanges()
{
    if (auto *const box = fieldCast<SoSFBox3s>(editedField())) {
        const auto corner = [this](int row) {
            const auto component = [&](int column) { return editAt(row, column)->text().toShort(); };
            return SbVec3s(component(0), component(1), component(2));
        };
        box->setValue(corner(0), corner(1));
    }
    HbSFLineWidget::refresh();
}
