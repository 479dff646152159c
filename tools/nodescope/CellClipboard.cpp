// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CellClipboard.h"

#include "CellText.h"
#include "FieldRows.h"
#include "OneNotification.h"

#include <HbMFColorTable.h>
#include <HbMFieldWidget.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

#include <Inventor/SbMatrix.h>
#include <Inventor/fields/SoMFMatrix.h>
#include <Inventor/fields/SoMFName.h>
#include <Inventor/fields/SoMFString.h>

namespace
{
constexpr QLatin1Char space(' ');
} // namespace

int componentOf(const QTableWidget &table, int column)
{
    return qobject_cast<const HbMFColorTable *>(&table) ? column - 1 : column;
}

CellClipboard::CellClipboard(HbMFieldWidget &widget, HbMFieldTable &table) : m_widget(widget), m_table(table) { }

bool CellClipboard::isCopy(const QKeyEvent &key)
{
    return key.key() == Qt::Key_C && key.modifiers() & Qt::ControlModifier; // with Shift too, which selects
}

bool CellClipboard::isPaste(const QKeyEvent &key)
{
    return key.matches(QKeySequence::Paste);
}

bool CellClipboard::isOfMatrices() const
{
    return m_widget.editedField()->isOfType(SoMFMatrix::getClassTypeId());
}

void CellClipboard::copy() const
{
    const QList<QTableWidgetSelectionRange> ranges = m_table.selectedRanges();
    const QModelIndex current = m_table.currentIndex();
    if (!m_widget.editedField() || (ranges.isEmpty() && !current.isValid()))
        return;
    const QTableWidgetSelectionRange range = ranges.isEmpty()
        ? QTableWidgetSelectionRange(current.row(), current.column(), current.row(), current.column())
        : ranges.first();
    Cells cells;
    for (int row = range.topRow(); row <= range.bottomRow(); ++row) {
        cells.append(QStringList());
        for (int column = range.leftColumn(); column <= range.rightColumn(); ++column)
            if (componentOf(m_table, column) >= 0)
                cells.last() += m_widget.getFieldValue(row, componentOf(m_table, column));
        if (isOfMatrices())
            cells.last() = cells.last().join(space).split(space);
    }
    QGuiApplication::clipboard()->setText(CellText::join(cells));
}

/// Whether a cell takes this text; what is no number would count as 0 there.
bool CellClipboard::accepts(const QString &shown, const QString &text) const
{
    const SoMField &field = *m_widget.editedField();
    if (field.isOfType(SoMFString::getClassTypeId()) || field.isOfType(SoMFName::getClassTypeId()))
        return true;
    bool wasNumber = false;
    bool isNumber = false;
    bool isInteger = false;
    shown.toDouble(&wasNumber);
    text.toDouble(&isNumber);
    text.toLongLong(&isInteger, 0);
    return isNumber || isInteger || !wasNumber;
}

bool CellClipboard::writeMatrix(int row, const QStringList &numbers) const
{
    auto &matrices = static_cast<SoMFMatrix &>(*m_widget.editedField());
    const QStringList shown = m_widget.getFieldValue(row, 0).split(space);
    if (numbers.size() != shown.size())
        return false;
    SbMatrix value = matrices[row];
    for (int i = 0; i < numbers.size(); ++i) {
        bool isNumber = true;
        if (numbers[i] != shown[i]) // else with the bits that its text does not tell
            value[i / 4][i % 4] = numbers[i].toFloat(&isNumber);
        if (!isNumber)
            return false;
    }
    matrices.set1Value(row, value);
    return true;
}

CellClipboard::Taken CellClipboard::write(const Cells &cells, int top) const
{
    int taken = 0;
    int refused = 0;
    const int left = qMax(componentOf(m_table, m_table.currentColumn()), 0);
    const int columns = m_table.columnCount() - (componentOf(m_table, 0) < 0 ? 1 : 0);
    for (int line = 0; line < cells.size(); ++line) {
        const int row = top + line;
        if (isOfMatrices()) {
            ++(writeMatrix(row, cells[line].join(space).simplified().split(space)) ? taken : refused);
            continue;
        }
        for (int i = 0; i < cells[line].size() && left + i < columns; ++i) {
            const QString &text = cells[line][i];
            const QString shown = m_widget.getFieldValue(row, left + i);
            const bool isAccepted = accepts(shown, text);
            ++(isAccepted ? taken : refused);
            if (isAccepted && text != shown)
                m_widget.set1Value(row, left + i, text);
        }
    }
    return taken == 0 ? Taken::Nothing : refused > 0 ? Taken::Some : Taken::All;
}

CellClipboard::Pasted CellClipboard::paste() const
{
    const Cells cells = CellText::split(QGuiApplication::clipboard()->text());
    SoMField &field = *m_widget.editedField();
    const int top = qBound(0, m_table.currentRow(), field.getNum());
    const int count = static_cast<int>(cells.size());
    const bool wasDefault = field.isDefault();
    const auto before = FieldRows::copy(field, top, count);
    OneNotification once(field);
    if (const int missing = count - before->getNum(); missing > 0)
        FieldRows::replace(field, field.getNum(), 0, *FieldRows::zeros(field, missing));
    const Taken taken = write(cells, top);
    if (taken == Taken::Nothing)
        FieldRows::replace(field, top, count, *before);
    const auto after = FieldRows::copy(field, top, count);
    const bool isSame = FieldRows::areSame(*before, *after);
    if (isSame) {
        once.cancel();
        field.setDefault(wasDefault);
    }
    return {{top, before, after}, !isSame, taken == Taken::All || cells.isEmpty()};
}
