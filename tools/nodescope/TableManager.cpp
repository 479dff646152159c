// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TableManager.h"

#include "EditorTable.h"
#include "ExactNumbers.h"
#include "FieldRows.h"
#include "FieldText.h"
#include "KeptImages.h"
#include "OneNotification.h"
#include "RowBox.h"
#include "TableControls.h"
#include "UntouchedParts.h"
#include "WriteWatch.h"

#include <HbMFieldTable.h>
#include <HbMFieldWidget.h>
#include <HbRealSlider.h>
#include <HbTablePopupWidget.h>

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QUndoStack>

#include <Inventor/SbString.h>
#include <Inventor/fields/SoMFColor.h>

#include <algorithm>
#include <array>
#include <utility>

TableManager::~TableManager()
{
    m_cells.reset(); // while what they set is there
}

void TableManager::setEditor(HbFieldEditors *editor)
{
    EditManager::setEditor(editor);
    m_table = editor->findChild<HbMFieldTable *>();
    auto *const widget = dynamic_cast<HbMFieldWidget *>(editor);
    if (!m_table || !widget) // of a plug-in, which edits the values in some way of its own
        return;
    connect(m_table, &QTableWidget::currentCellChanged, this, &TableManager::supplyText);
    connect(stack(), &QUndoStack::indexChanged, this, [this] { dropMisplaced(); });
    SliderTarget &values = *this;
    m_cells.emplace(*m_table, values, stack());
    connect(&*m_cells, &CellEditors::made, this, &TableManager::cellOpened);
    connect(&typing(), &TypedNumbers::cellDropped, this, [this] { m_cells->drop(); });
    connect(&typing(), &TypedNumbers::entered, this, &TableManager::enterGrid);
    connect(&*m_cells, &CellEditors::changed, this, &TableManager::supplyText); // a closed cell's is freshened
    m_clipboard.emplace(*widget, *m_table);
    if (!dynamic_cast<HbTablePopupWidget *>(widget))
        m_supply.emplace(*widget, *m_table);
    m_controls = new TableControls(*widget, *m_table, *this);
    connect(m_controls, &TableControls::deleteWanted, this, &TableManager::removeRows);
    connect(m_controls, &TableControls::copyWanted, this, [this] { m_clipboard->copy(); });
    connect(m_controls, &TableControls::pasteWanted, this, &TableManager::paste);
}

void TableManager::setField(SoField *field)
{
    EditManager::setField(field);
    if (m_cells)
        m_cells->beginSeries();
    if (field && m_table && EditorTable::isStandard(*editor()))
        m_form = m_table->columnCount() > 1 ? NumberForm::of(*field).component() : NumberForm::of(*field);
    if (field && field->isOfType(SoMFColor::getClassTypeId())) { // whose table takes nothing else
        m_form.least = 0;
        m_form.most = 1;
    }
}

void TableManager::refresh()
{
    dropMisplaced();
    {
        const QSignalBlocker quiet(m_controls ? &m_controls->rowBox().box() : nullptr); // bounding it is no entry
        EditManager::refresh();
    }
    if (!m_table)
        return;
    showSomeRows();
    if (m_table->currentRow() < 0 && m_table->rowCount() > 0)
        m_table->setCurrentCell(0, 0, QItemSelectionModel::NoUpdate);
    supplyText();
    if (m_cells)
        m_cells->refresh();
    if (m_controls)
        m_controls->rowBox().show();
}

/// As high as its rows, up to some.
void TableManager::showSomeRows()
{
    constexpr int mostRows = 8;
    const int rowHeight = m_table->verticalHeader()->defaultSectionSize();
    const bool hasLabels = !m_table->horizontalHeader()->isHidden();
    const int height = (hasLabels ? m_table->horizontalHeader()->sizeHint().height() : 0) + 2 * m_table->frameWidth()
        + qBound(1, m_table->rowCount(), mostRows) * rowHeight;
    if (m_table->minimumHeight() == height && m_table->maximumHeight() == height)
        return;
    m_table->setFixedHeight(height);
}

void TableManager::finish()
{
    typing().settle();
    if (m_cells)
        m_cells->finish();
    else if (m_table)
        m_table->finishEditing();
}

/// Once values came or went, an open editor may be over another value than it was opened for. Whether that is so.
bool TableManager::dropMisplaced()
{
    if (!rows() || std::exchange(m_count, rows()->getNum()) == rows()->getNum())
        return false;
    if (m_cells && !m_cells->drop())
        Q_EMIT message(
            tr("%1 has got other rows: what was being typed is dropped.").arg(FieldText::qualifiedName(*rows())));
    return true;
}

void TableManager::dropTyped()
{
    if (m_cells)
        m_cells->drop();
}

SoMField *TableManager::rows() const
{
    return static_cast<SoMField *>(field());
}

void TableManager::letGo()
{
    EditManager::letGo();
    if (m_cells)
        m_cells->letGo();
}

bool TableManager::mayEdit()
{
    return isCommanded() && !refuse();
}

void TableManager::record(std::vector<RowsChange> changes, bool wasDefault, int series)
{
    push(std::make_unique<RowsCommand>(*rows(), std::move(changes), wasDefault, series));
}

void TableManager::editRow(int row, std::shared_ptr<SoMField> before, bool wasDefault,
                           const std::function<void()> &write)
{
    if (!mayEdit() || row < 0 || row >= rows()->getNum())
        return;
    const OwnEdit own;
    const KeptImages kept(*rows());
    const WriteWatch watch(*rows());
    write();
    const QString why = refusal(watch);
    const bool isAccepted = why.isEmpty();
    const auto after = FieldRows::copy(*rows(), row, 1);
    const bool isSame = FieldRows::areSame(*before, *after);
    if (!isSame && isAccepted)
        record({{row, before, after}}, wasDefault, editSeries());
    else if (!isSame) // stored in part
        FieldRows::replace(*rows(), row, 1, *before);
    if (isSame || !isAccepted)
        rows()->setDefault(wasDefault);
    if (m_cells)
        m_cells->beginSeries();
    refresh();
    if (!isAccepted)
        Q_EMIT message(why);
}

/// Whether a text is that of its cell, or of the cell's slider, which may tell less than the value.
bool TableManager::isShown(int row, const QString &shown, const QString &text) const
{
    if (shown.isNull())
        return false;
    const std::optional<double> number = SliderRanges::numberIn(*rows(), row);
    return text == shown || (number && text == SliderPlaces::textOf(*number));
}

void TableManager::mfieldSet1Value(int row, int col, QString text, SbString *previousData)
{
    delete previousData; // its text is rounded
    const bool isGrid = col < 0 && typing().hasGrid();
    if (!isCommanded() || (isGrid && !m_isEntering)) // which the library reports with every keystroke
        return;
    const auto *const widget = dynamic_cast<const HbMFieldWidget *>(editor());
    const QString shown = widget && col >= 0 ? widget->getFieldValue(row, col) : QString();
    if (dropMisplaced() || isShown(row, shown, text)) {
        refresh();
        return;
    }
    if (!isGrid && !readTyped(text))
        return;
    const auto before = FieldRows::copy(*rows(), row, 1);
    editRow(row, before, rows()->isDefault(), [&] {
        editor()->set1Value(row, col, text);
        if (m_form.kind != NumberForm::Kind::None)
            ExactNumbers::mend(*rows(), row, *before, shown, text);
    });
}

void TableManager::mfieldSetValue(int row, const void *data)
{
    if (!isCommanded())
        return;
    std::array<float, 3> chosen{};
    if (auto *const colors = dynamic_cast<SoMFColor *>(rows()); colors && row >= 0 && row < colors->getNum()) {
        std::copy_n(static_cast<const float *>(data), chosen.size(), chosen.begin());
        for (std::size_t i = 0; i < chosen.size(); ++i)
            if (const float before = (*colors)[row][static_cast<int>(i)]; isSameLevel(chosen[i], before))
                chosen[i] = before;
        data = chosen.data();
    }
    editRow(row, FieldRows::copy(*rows(), row, 1), rows()->isDefault(), [&] { editor()->setValue(row, data); });
}

void TableManager::replace(int row, int count, std::shared_ptr<SoMField> values)
{
    if (!mayEdit())
        return;
    const OwnEdit own;
    const KeptImages kept(*rows());
    const bool wasDefault = rows()->isDefault();
    const auto before = FieldRows::copy(*rows(), row, count);
    FieldRows::replace(*rows(), row, before->getNum(), *values);
    record({{row, before, values}}, wasDefault, FieldCommand::noSeries);
    refresh();
}

void TableManager::mfieldAddRows(int row, int numRows)
{
    if (isListening() && row >= 0 && row <= rows()->getNum() && numRows > 0)
        replace(row, 0, FieldRows::zeros(*rows(), numRows));
}

void TableManager::mfieldDeleteRows(int topRow, int numValues)
{
    if (numValues > 0)
        removeRows({{topRow, topRow + numValues - 1}});
}

/// One step, whatever the number of ranges, which come from above.
void TableManager::removeRows(const std::vector<CellSelection::Rows> &ranges)
{
    const int count = isListening() ? rows()->getNum() : 0;
    if (ranges.empty() || ranges.front().top < 0 || ranges.front().top >= count || !mayEdit())
        return;
    const OwnEdit own;
    const KeptImages kept(*rows());
    const bool wasDefault = rows()->isDefault();
    std::vector<RowsChange> changes;
    {
        const OneNotification once(*rows());
        for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
            const auto before = FieldRows::copy(*rows(), range->top, range->count());
            if (range->top >= count)
                continue;
            changes.push_back({range->top, before, FieldRows::zeros(*rows(), 0)});
            FieldRows::replace(*rows(), range->top, before->getNum(), *changes.back().after);
        }
    }
    record(std::move(changes), wasDefault, FieldCommand::noSeries);
    refresh();
}

void TableManager::mfieldSwapRows(int first, int second)
{
    const auto isRow = [this](int row) { return row >= 0 && row < rows()->getNum(); };
    if (!isListening() || !isRow(first) || !isRow(second) || first == second || !mayEdit())
        return;
    const OwnEdit own;
    const KeptImages kept(*rows());
    const bool wasDefault = rows()->isDefault();
    const auto firstValue = FieldRows::copy(*rows(), first, 1);
    const auto secondValue = FieldRows::copy(*rows(), second, 1);
    {
        const OneNotification once(*rows());
        FieldRows::replace(*rows(), first, 1, *secondValue);
        FieldRows::replace(*rows(), second, 1, *firstValue);
    }
    record({{first, firstValue, secondValue}, {second, secondValue, firstValue}}, wasDefault, FieldCommand::noSeries);
    refresh();
}

void TableManager::mfieldSwapColumns(int first, int second)
{
    if (first == second || !mayEdit())
        return;
    const OwnEdit own;
    const KeptImages kept(*rows());
    const bool wasDefault = rows()->isDefault();
    if (FieldRows::swapColumns(*rows(), first, second))
        push(std::make_unique<SwapColumnsCommand>(*rows(), first, second, wasDefault));
    refresh();
}

int TableManager::rowOf(const HbSlider &slider) const
{
    return m_table->indexAt(slider.geometry().center()).row();
}

std::optional<double> TableManager::slidNumber(const HbSlider &slider) const
{
    return rows() ? SliderRanges::numberIn(*rows(), rowOf(slider)) : std::nullopt;
}

bool TableManager::beginSlide(const HbSlider &slider)
{
    if (!isListening() || refuse())
        return false;
    const int row = rowOf(slider);
    if (row < 0 || row >= rows()->getNum())
        return false;
    m_slid.row = row;
    m_slid.before = m_slid.after = FieldRows::copy(*rows(), row, 1);
    m_wasDefault = m_isSlidDefault = rows()->isDefault();
    return true;
}

void TableManager::slide(const HbSlider &slider)
{
    editor()->set1Value(m_slid.row, 0, slider.getText());
    m_slid.after = FieldRows::copy(*rows(), m_slid.row, 1);
    m_isSlidDefault = rows()->isDefault();
}

bool TableManager::holdsSlid() const
{
    return FieldRows::areSame(*m_slid.after, *FieldRows::copy(*rows(), m_slid.row, 1));
}

bool TableManager::isAsSlid() const
{
    return !rows() || (m_isSlidDefault == bool(rows()->isDefault()) && holdsSlid());
}

void TableManager::dropSlid()
{
    if (!holdsSlid())
        return;
    const bool isDefault = rows()->isDefault();
    FieldRows::replace(*rows(), m_slid.row, 1, *m_slid.before);
    rows()->setDefault(isDefault);
}

void TableManager::putBack(HbSlider &slider)
{
    if (!holdsSlid() || !FieldRows::areSame(*m_slid.after, *m_slid.before))
        FieldRows::replace(*rows(), m_slid.row, 1, *m_slid.before);
    m_slid.after = m_slid.before;
    m_isSlidDefault = m_wasDefault;
    rows()->setDefault(m_wasDefault);
    const QString text = static_cast<HbMFieldWidget *>(editor())->getFieldValue(m_slid.row, 0);
    if (auto *const real = dynamic_cast<HbRealSlider *>(&slider))
        real->setRealValue(text.toFloat());
    else
        slider.setValue(text);
}

void TableManager::endSlide(int series)
{
    if (!rows() || !stack() || m_slid.row >= rows()->getNum())
        return;
    m_slid.after = FieldRows::copy(*rows(), m_slid.row, 1);
    if (!FieldRows::areSame(*m_slid.before, *m_slid.after))
        record({m_slid}, m_wasDefault, series);
    else
        rows()->setDefault(m_wasDefault);
}

void TableManager::supplyText()
{
    if (m_supply)
        m_supply->supply();
}

void TableManager::cellOpened(QWidget *cellEditor)
{
    typing().adoptCell(*cellEditor, m_form);
}

/// Makes plain numbers of the text. False, and says why, where it cannot be read.
bool TableManager::readTyped(QString &text)
{
    if (m_form.kind == NumberForm::Kind::None)
        return true;
    const NumberForm::Reading reading = m_form.read(text);
    text = reading.text;
    if (!reading.isReadable()) {
        refresh();
        Q_EMIT message(QStringLiteral("%1: %2").arg(FieldText::qualifiedName(*rows()), reading.error));
    }
    return reading.isReadable();
}

void TableManager::enterGrid()
{
    if (!typing().settle())
        return;
    constexpr int wholeValue = -1;
    const QScopedValueRollback<bool> entering(m_isEntering, true);
    mfieldSet1Value(m_table->currentRow(), wholeValue, QString(), nullptr);
    typing().setCommitted();
}

void TableManager::paste()
{
    if (!mayEdit())
        return;
    const OwnEdit own;
    const KeptImages kept(*rows());
    const bool wasDefault = rows()->isDefault();
    const CellClipboard::Pasted pasted = m_clipboard->paste(m_form);
    if (pasted.isChange)
        record({pasted.change}, wasDefault, FieldCommand::noSeries);
    refresh();
    if (!pasted.isAllAccepted)
        Q_EMIT message(tr("%1 does not accept all that was pasted. %2")
                           .arg(FieldText::qualifiedName(*rows()), pasted.refusal)
                           .trimmed());
}
