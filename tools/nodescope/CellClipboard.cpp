// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CellClipboard.h"

#include "CellText.h"
#include "Containment.h"
#include "ExactNumbers.h"
#include "FieldRows.h"
#include "OneNotification.h"

#include <HbMFieldTable.h>
#include <HbMFieldWidget.h>

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QMimeData>

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
constexpr QLatin1Char tab('\t');
constexpr QLatin1Char newLine('\n');

/// What this program has copied, while nobody else has copied something.
class CopiedCells : public QMimeData
{
public:
    std::shared_ptr<SoMField> rows; ///< to the bit; null where no whole rows were copied
};

const CopiedCells *copiedCells()
{
    return dynamic_cast<const CopiedCells *>(QGuiApplication::clipboard()->mimeData());
}

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

/// Whether a text of six digits may tell both, as it does of a number in single precision.
bool isRounded(double exact, double rounded)
{
    constexpr double precision = 1e-5;
    constexpr double smallest = 1e-37;
    return exact == rounded || (std::isnan(exact) && std::isnan(rounded))
        || std::abs(exact - rounded) <= precision * std::abs(exact) + smallest;
}
} // namespace

/// The numbers that a text means, as every editor reads them; a text that is none as it is.
std::optional<QString> CellClipboard::Reader::plain(const QString &text)
{
    if (form.kind == NumberForm::Kind::None)
        return text;
    const NumberForm::Reading reading = form.read(text);
    if (reading.isReadable())
        return reading.text;
    if (refusal.isEmpty())
        refusal = reading.error;
    return std::nullopt;
}

CellClipboard::CellClipboard(HbMFieldWidget &widget, HbMFieldTable &table) : m_widget(widget), m_table(table) { }

bool CellClipboard::isOfMatrices() const
{
    return m_widget.editedField()->isOfType(SoMFMatrix::getClassTypeId());
}

/// The texts of a row's components, in all their digits.
QStringList CellClipboard::textsOf(int row) const
{
    const SoMField &field = *m_widget.editedField();
    const QStringList exact = FieldRows::numberTexts(field, row);
    const int count = CellSelection::componentCount(m_table);
    if (isOfMatrices() || exact.size() == count)
        return exact;
    const bool isTurn = field.isOfType(SoMFRotation::getClassTypeId()); // whose text is no quaternion
    if (count == 1)
        return {exact.isEmpty() || isTurn ? m_widget.getFieldValue(row, 0) : exact.join(space)};
    QStringList texts;
    for (int component = 0; component < count; ++component)
        texts += m_widget.getFieldValue(row, component);
    return texts;
}

QString CellClipboard::textOf(const std::vector<CellSelection::Block> &blocks) const
{
    const std::vector<int> components = CellSelection::components(blocks);
    const auto isSelected = [&](int row, int component) {
        return std::any_of(blocks.begin(), blocks.end(), [&](const CellSelection::Block &block) {
            return row >= block.rows.top && row <= block.rows.bottom && component >= block.left
                && component <= block.right;
        });
    };
    QString text;
    for (const CellSelection::Rows &rows : CellSelection::rows(blocks)) {
        for (int row = rows.top; row <= rows.bottom; ++row) {
            const QStringList texts = textsOf(row);
            QStringList cells;
            for (const int component : components)
                cells += isSelected(row, component) ? CellText::written(texts.value(component)) : QString();
            text += (isOfMatrices() ? texts : cells).join(tab) + newLine;
        }
    }
    text.chop(1);
    return text;
}

/// Null if parts of rows are selected, or values that hold others alive.
std::shared_ptr<SoMField> CellClipboard::wholeRows(const std::vector<CellSelection::Block> &blocks) const
{
    const int last = CellSelection::componentCount(m_table) - 1;
    const SoMField &field = *m_widget.editedField();
    const bool areWhole = std::all_of(blocks.begin(), blocks.end(), [last](const CellSelection::Block &block) {
        return block.left == 0 && block.right == last;
    });
    if (!areWhole || !FieldRows::areValues(field))
        return nullptr;
    const auto all = FieldRows::zeros(field, 0);
    for (const CellSelection::Rows &rows : CellSelection::rows(blocks))
        FieldRows::replace(*all, all->getNum(), 0, *FieldRows::copy(field, rows.top, rows.count()));
    return all;
}

void CellClipboard::copy() const
{
    const std::vector<CellSelection::Block> blocks = CellSelection::blocks(m_table);
    if (!m_widget.editedField() || blocks.empty())
        return;
    auto *const cells = new CopiedCells;
    cells->rows = wholeRows(blocks);
    cells->setText(textOf(blocks));
    QGuiApplication::clipboard()->setMimeData(cells);
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
bool CellClipboard::writeCell(int row, int column, const QString &text, Reader &reader) const
{
    SoMField &field = *m_widget.editedField();
    const QString shown = m_widget.getFieldValue(row, column);
    const bool isSame = textsOf(row).value(column) == text;
    if (isSame || (shown == text && !copiedCells())) // else with the bits that its text does not tell
        return true;
    const std::optional<QString> plain = reader.plain(text);
    if (!plain)
        return false;
    const std::vector<double> numbers = isOfTexts() ? std::vector<double>() : numbersOf(*plain);
    if (!isOfTexts() && numbers.empty() && !numbersOf(shown).empty())
        return false; // some editors would make it 0
    const auto before = FieldRows::copy(field, row, 1);
    field.setDefault(TRUE); // until it is written: it is silent
    m_widget.set1Value(row, column, *plain);
    ExactNumbers::mend(field, row, *before, shown, *plain);
    if (leadsInCircles(field))
        reader.refusal = QCoreApplication::translate("CellClipboard", "A node would contain itself.");
    else if (!field.isDefault() && isMeant(m_widget.getFieldValue(row, column), *plain, numbers))
        return true;
    FieldRows::replace(field, row, 1, *before);
    return false;
}

bool CellClipboard::writeMatrix(int row, const QStringList &numbers, Reader &reader) const
{
    auto &matrices = static_cast<SoMFMatrix &>(*m_widget.editedField());
    const QStringList held = textsOf(row);
    if (numbers.size() != held.size())
        return false;
    SbMatrix value = matrices[row];
    for (int i = 0; i < numbers.size(); ++i) {
        float &number = value[i / 4][i % 4];
        const bool isSame = numbers[i] == held[i] || (!copiedCells() && numbers[i] == QString::number(double(number)));
        if (isSame)
            continue; // with the bits that its text does not tell
        const std::optional<QString> plain = reader.plain(numbers[i]);
        if (!plain)
            return false;
        number = plain->toFloat();
    }
    matrices.set1Value(row, value);
    return true;
}

CellClipboard::Taken CellClipboard::write(const Cells &cells, int top, int left, Reader &reader) const
{
    int taken = 0;
    int refused = 0;
    const int columns = CellSelection::componentCount(m_table);
    for (int line = 0; line < cells.size(); ++line) {
        const int row = top + line;
        if (isOfMatrices()) {
            ++(writeMatrix(row, cells[line].join(space).simplified().split(space), reader) ? taken : refused);
            continue;
        }
        for (int i = 0; i < cells[line].size(); ++i) {
            const QString &text = cells[line][i];
            const bool isBeyond = left + i >= columns;
            if (!text.isEmpty() || (isOfTexts() && !isBeyond))
                ++(!isBeyond && writeCell(row, left + i, text, reader) ? taken : refused);
        }
    }
    return taken == 0 ? Taken::Nothing : refused > 0 ? Taken::Some : Taken::All;
}

/// Without blank lines, which are values among texts only.
CellClipboard::Cells CellClipboard::read(const NumberForm &form) const
{
    const QString text = QGuiApplication::clipboard()->text();
    const bool areRows = form.kind != NumberForm::Kind::None && CellSelection::start(m_table).column() <= 0;
    const int columns = isOfMatrices() ? 1 : CellSelection::componentCount(m_table);
    Cells cells = areRows ? CellText::splitValues(text, columns * form.count) : Cells();
    if (columns == 1)
        for (QStringList &row : cells)
            row = QStringList(row.join(space));
    if (!cells.isEmpty())
        return cells;
    cells = CellText::split(text);
    const auto isBlank = [](const QStringList &line) { return line.join(QString()).trimmed().isEmpty(); };
    if (!isOfTexts())
        cells.erase(std::remove_if(cells.begin(), cells.end(), isBlank), cells.end());
    return cells;
}

/// The rows of the only block that is selected.
int CellClipboard::selectedRows() const
{
    const std::vector<CellSelection::Block> blocks = CellSelection::blocks(m_table);
    return blocks.size() == 1 ? blocks[0].rows.count() : 1;
}

/// One cell, or a row as wide as the block that is selected, is meant for all of it.
void CellClipboard::fillSelection(Cells &cells) const
{
    const std::vector<CellSelection::Block> blocks = CellSelection::blocks(m_table);
    if (cells.size() != 1 || blocks.size() != 1 || isOfMatrices())
        return;
    QStringList row = cells[0];
    const int width = blocks[0].right - blocks[0].left + 1;
    while (cells[0].size() == 1 && row.size() < width)
        row += row.first();
    if (row.size() == width)
        cells.fill(row, selectedRows());
}

CellClipboard::Pasted CellClipboard::paste(const NumberForm &form) const
{
    SoMField &field = *m_widget.editedField();
    const QModelIndex start = CellSelection::start(m_table);
    const int top = qBound(0, start.row(), field.getNum());
    const int left = qMax(CellSelection::componentOf(m_table, start.column()), 0);
    const CopiedCells *const copied = copiedCells();
    const bool isExact = copied && copied->rows && copied->rows->getTypeId() == field.getTypeId() && left == 0;
    Cells cells = isExact ? Cells() : read(form);
    fillSelection(cells);
    const int copies = isExact && copied->rows->getNum() == 1 ? selectedRows() : 1;
    const int count = isExact ? copies * copied->rows->getNum() : static_cast<int>(cells.size());
    const bool wasDefault = field.isDefault();
    const auto before = FieldRows::copy(field, top, count);
    Reader reader{isOfMatrices() ? form.component() : form, {}};
    Taken taken = Taken::All;
    OneNotification once(field);
    if (isExact) {
        FieldRows::replace(field, top, before->getNum(), *copied->rows);
        for (int copy = 1; copy < copies; ++copy)
            FieldRows::replace(field, top, 0, *copied->rows);
    } else {
        if (const int missing = count - before->getNum(); missing > 0)
            FieldRows::replace(field, field.getNum(), 0, *FieldRows::zeros(field, missing));
        taken = write(cells, top, left, reader);
        if (taken == Taken::Nothing)
            FieldRows::replace(field, top, count, *before);
    }
    const auto after = FieldRows::copy(field, top, count);
    const bool isSame = FieldRows::areSame(*before, *after);
    if (isSame) {
        once.cancel();
        field.setDefault(wasDefault);
    }
    return {{top, before, after}, !isSame, taken == Taken::All || cells.isEmpty(), reader.refusal};
}
