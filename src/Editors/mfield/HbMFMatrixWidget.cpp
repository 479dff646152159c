// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFMatrixWidget.h>

#include "MFieldAccess.h"
#include "VectorTable.h"
#include "support/CoinText.h"
#include "support/GridValidators.h"
#include "support/RowTextCache.h"

#include <HbTablePopupLineEdit.h>

#include <Inventor/SbMatrix.h>
#include <Inventor/fields/SoMFMatrix.h>

#include <typeinfo>

namespace
{
constexpr int side = 4;
constexpr int elements = side * side;

/// The first values, of which a text is made.
QByteArray bytesOf(const SoMFMatrix &matrices, int count)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(matrices.getValues(0)),
                                   count * static_cast<int>(sizeof(SbMatrix)));
}
} // namespace

HbMFMatrixWidget::HbMFMatrixWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, QWidget *parent,
                                   const char *name, Qt::WindowFlags flags)
    : HbTablePopupWidget(fieldType, commandManager, side, side, parent, name ? name : "HbMFMatrixWidget", flags)
{
    setValidator(GridValidators::real6);
}

HbMFMatrixWidget::HbMFMatrixWidget(HbFieldEditorCommandManager *commandManager, QWidget *parent, const char *name,
                                   Qt::WindowFlags flags)
    : HbMFMatrixWidget(nullptr, commandManager, parent, name, flags)
{
}

HbMFMatrixWidget::~HbMFMatrixWidget() = default;

bool HbMFMatrixWidget::checkField(SoField *field)
{
    return VectorTable::accepts<SoMFMatrix>(field);
}

QString HbMFMatrixWidget::getFieldValue(int row, int col) const
{
    SoMField *const field = editedField();
    if (!field || !RowValues::contains(*field, row) || col != 0)
        return {};
    constexpr int wholeField = -1;
    const auto text = [field] { return CoinText::ofField(*field); };
    const auto *const matrices = fieldAs<SoMFMatrix>(); // a derived class may take other fields
    return textCache().text(*field, wholeField, text, matrices ? bytesOf(*matrices, matrices->getNum()) : QByteArray());
}

QString HbMFMatrixWidget::getCellText(int row, int col, int limit) const
{
    auto *const matrices = fieldAs<SoMFMatrix>();
    if (!matrices || !RowValues::contains(*matrices, row) || col != 0)
        return {};
    constexpr int few = 64; // whose text is made at once
    constexpr int shortest = 2 * elements; // a matrix of digits
    const int start = qMax(few, limit / shortest + 2); // two at least: a list is in brackets
    const bool isDerived = typeid(*this) != typeid(HbMFMatrixWidget); // it may have overridden getFieldValue()
    if (isDerived || matrices->getNum() <= start)
        return getFieldValue(row, col);
    const auto text = [&] {
        SoMFMatrix first;
        first.setValues(0, start, matrices->getValues(0));
        return CoinText::ofField(first);
    };
    return textCache().text(*matrices, -1 - start, text, bytesOf(*matrices, start));
}

QString HbMFMatrixWidget::getPopupValue(int row, int index)
{
    const auto *const matrices = fieldAs<SoMFMatrix>();
    if (!matrices || !RowValues::contains(*matrices, row) || index < 0 || index >= elements)
        return {};
    const int element = index < side ? index * side : index;
    return NumberText::fromFloat((*matrices)[row].getValue()[element / side][element % side]);
}

void HbMFMatrixWidget::set1Value(int row, int, QString)
{
    auto *const matrices = fieldAs<SoMFMatrix>();
    if (!matrices || !RowValues::contains(*matrices, row))
        return;
    SbMatrix value = (*matrices)[row];
    for (std::size_t i = 0; i < elements; ++i) {
        const QString text = m_popupEdits[i]->text();
        if (text == m_filledTexts[i])
            continue; // with the bits that its text does not tell
        value[static_cast<int>(i) / side][static_cast<int>(i) % side] = NumberText::toFloat(text);
        m_filledTexts[i] = text;
    }
    matrices->set1Value(row, value);
}

void HbMFMatrixWidget::swapRows(int first, int second)
{
    VectorTable::swap(editedField(), first, second);
}
