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
#include <Inventor/fields/SoMFPlane.h>
#include <Inventor/fields/SoMFRotation.h>
#include <Inventor/fields/SoMFString.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{
constexpr QLatin1Char space(' ');

/// The numbers of which a text consists, none if there is anything else in it.
std::vector<double> numbersOf(const QString &text)
{
    std::vector<double> numbers;
    const QStringList words = text.simplified().split(space);
    for (const QString &word : words) {
        bool isNumber = false;
        double number = word.toDouble(&isNumber);
        if (!isNumber)
            number = double(word.toLongLong(&isNumber, 0)); // in hexadecimal digits
        if (!isNumber)
            return {};
        numbers.push_back(number);
    }
    return numbers;
}

bool areWhole(const std::vector<double> &numbers)
{
    constexpr double most = 9e15; // that a double tells apart
    return !numbers.empty() && std::all_of(numbers.begin(), numbers.end(), [](double number) {
        return std::abs(number) < most && std::floor(number) == number;
    });
}

/// As every editor of whole numbers reads them, where a spreadsheet may have written "5.00" or "1e3".
QString inDigits(const std::vector<double> &numbers)
{
    QStringList words;
    for (const double number : numbers)
        words += QString::number(static_cast<qint64>(number));
    return words.join(space);
}

/// Whether a text of six digits may tell both, as it does of a number in single precision.
bool isRounded(double exact, double rounded)
{
    constexpr double precision = 1e-5;
    constexpr double smallest = 1e-37;
    return exact == rounded || (std::isnan(exact) && std::isnan(rounded))
        || std::abs(exact - rounded) <= precision * std::abs(exact) + smallest;
}
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

bool CellClipboard::isOfTexts() const
{
    const SoMField &field = *m_widget.editedField();
    return field.isOfType(SoMFString::getClassTypeId()) || field.isOfType(SoMFName::getClassTypeId());
}

/// Whether what a cell shows is what was written to it, as far as it tells.
bool CellClipboard::isMeant(const QString &shown, const QString &text, const std::vector<double> &numbers) const
{
    const SoMField &field = *m_widget.editedField();
    if (field.isOfType(SoMFName::getClassTypeId()))
        return shown == text || shown == QLatin1Char('"') + text + QLatin1Char('"');
    const bool isNormalised
        = field.isOfType(SoMFRotation::getClassTypeId()) || field.isOfType(SoMFPlane::getClassTypeId());
    const std::vector<double> held = isOfTexts() || isNormalised ? std::vector<double>() : numbersOf(shown);
    if (held.empty())
        return true;
    return FieldRows::areWhole(field) ? held == numbers
                                      : std::equal(numbers.begin(), numbers.end(), held.begin(), held.end(), isRounded);
}

/// Decides by the result, since editors and Coin's parsers refuse in silence, or take the half of it.
bool CellClipboard::writeCell(int row, int column, const QString &text) const
{
    SoMField &field = *m_widget.editedField();
    const QString shown = m_widget.getFieldValue(row, column);
    if (shown == text) // else with the bits that its text does not tell
        return true;
    const std::vector<double> numbers = isOfTexts() ? std::vector<double>() : numbersOf(text);
    if (!isOfTexts() && numbers.empty() && !numbersOf(shown).empty())
        return false; // some editors would make it 0
    const auto before = FieldRows::copy(field, row, 1);
    field.setDefault(TRUE); // until it is written: it is silent
    m_widget.set1Value(row, column, FieldRows::areWhole(field) && areWhole(numbers) ? inDigits(numbers) : text);
    if (!field.isDefault() && isMeant(m_widget.getFieldValue(row, column), text, numbers))
        return true;
    FieldRows::replace(field, row, 1, *before);
    return false;
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
        for (int i = 0; i < cells[line].size(); ++i) {
            const QString &text = cells[line][i];
            const bool isBeyond = left + i >= columns;
            if (!isBeyond || !text.isEmpty())
                ++(!isBeyond && writeCell(row, left + i, text) ? taken : refused);
        }
    }
    return taken == 0 ? Taken::Nothing : refused > 0 ? Taken::Some : Taken::All;
}

/// Without blank lines, which are values among texts only.
CellClipboard::Cells CellClipboard::read() const
{
    Cells cells = CellText::split(QGuiApplication::clipboard()->text());
    const auto isBlank = [](const QStringList &line) { return line.join(QString()).trimmed().isEmpty(); };
    if (!isOfTexts())
        cells.erase(std::remove_if(cells.begin(), cells.end(), isBlank), cells.end());
    return cells;
}

CellClipboard::Pasted CellClipboard::paste() const
{
    const Cells cells = read();
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
