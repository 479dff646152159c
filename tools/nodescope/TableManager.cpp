// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TableManager.h"

#include "FieldCommand.h"
#include "FieldRows.h"
#include "FieldText.h"
#include "MatrixRows.h"
#include "OneNotification.h"
#include "WriteWatch.h"

#include <HbMFieldTable.h>
#include <HbMFieldWidget.h>
#include <HbTablePopupWidget.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QUndoStack>

#include <Inventor/SbString.h>
#include <Inventor/fields/SoMField.h>

#include <utility>

void TableManager::setEditor(HbFieldEditors *editor)
{
    EditManager::setEditor(editor);
    m_table = editor->findChild<HbMFieldTable *>();
    auto *const widget = dynamic_cast<HbMFieldWidget *>(editor);
    if (!m_table || !widget) // of a plug-in, which edits the values in some way of its own
        return;
    connect(m_table, &QTableWidget::currentCellChanged, this, &TableManager::supplyText);
    connect(stack(), &QUndoStack::indexChanged, this, &TableManager::stackMoved);
    m_cells.emplace(*m_table);
    connect(&*m_cells, &CellEditors::changed, this, &TableManager::cellEditorsChanged);
    connect(&*m_cells, &CellEditors::sliderPressed, this, &TableManager::remember);
    connect(&*m_cells, &CellEditors::sliderDragged, this, &TableManager::noteDrag);
    connect(&*m_cells, &CellEditors::sliderStepped, this, &TableManager::sliderStepped);
    m_clipboard.emplace(*widget, *m_table);
    m_table->horizontalHeader()->setHidden(m_table->columnCount() == 1); // it would say "1"
    m_table->installEventFilter(this);
    auto *const popup = dynamic_cast<HbTablePopupWidget *>(editor);
    if (!popup) {
        m_supply.emplace(*widget, *m_table);
    } else {
        m_keyboard = popup; // its table is disabled
        popup->installEventFilter(this);
        new MatrixRows(*popup, *m_table, *this);
    }
}

void TableManager::setField(SoField *field)
{
    EditManager::setField(field);
    m_rowBefore.row = -1;
    m_rowSeries = FieldCommand::newSeries();
}

void TableManager::refresh()
{
    dropMisplaced();
    EditManager::refresh();
    if (!m_table)
        return;
    showSomeRows();
    if (m_table->currentRow() < 0 && m_table->rowCount() > 0)
        m_table->setCurrentCell(0, 0);
    if (!m_cells || !m_cells->isDragging())
        remember();
    supplyText();
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
    if (m_cells)
        m_cells->finish();
    else if (m_table)
        m_table->finishEditing();
}

/// Once values came or went, an open editor may be over another value than it was opened for. Whether that is so.
bool TableManager::dropMisplaced()
{
    const int count = rows() ? rows()->getNum() : 0;
    if (std::exchange(m_count, count) == count)
        return false;
    if (m_cells && !m_cells->drop())
        Q_EMIT message(
            tr("%1 has got other rows: what was being typed is dropped.").arg(FieldText::qualifiedName(*rows())));
    return true;
}

SoMField *TableManager::rows() const
{
    return static_cast<SoMField *>(field());
}

/// Where the field cannot be edited: says why, and takes back what a slider wrote on the way.
bool TableManager::mayEdit(const RowsChange *restored)
{
    if (!isListening())
        return false;
    const QString obstacle = FieldText::obstacle(*rows());
    if (obstacle.isEmpty())
        return true;
    if (restored)
        FieldRows::replace(*rows(), restored->row, 1, *restored->before);
    refresh();
    Q_EMIT message(obstacle);
    return false;
}

void TableManager::record(std::vector<RowsChange> changes, bool wasDefault, int series)
{
    stack()->push(new RowsCommand(*rows(), std::move(changes), wasDefault, series));
}

void TableManager::editRow(int row, std::shared_ptr<SoMField> before, bool wasDefault,
                           const std::function<void()> &write)
{
    const RowsChange change{row, before, {}};
    if (!mayEdit(&change) || row < 0 || row >= rows()->getNum())
        return;
    const OwnEdit own;
    const WriteWatch watch(*rows());
    write();
    const bool isAccepted = watch.isWritten();
    const auto after = FieldRows::copy(*rows(), row, 1);
    const bool isSame = FieldRows::areSame(*before, *after);
    if (!isSame && isAccepted)
        record({{row, before, after}}, wasDefault, FieldCommand::noSeries);
    else if (!isSame) // stored in part
        FieldRows::replace(*rows(), row, 1, *before);
    if (isSame || !isAccepted)
        rows()->setDefault(wasDefault);
    m_rowSeries = FieldCommand::newSeries();
    refresh();
    remember();
    if (!isAccepted)
        tellRefused();
}

void TableManager::mfieldSet1Value(int row, int col, QString text, SbString *previousData)
{
    const std::unique_ptr<SbString> dragged(previousData); // its text is rounded; ours is the exact value
    if (!isListening())
        return;
    if (dropMisplaced()) {
        refresh();
        return;
    }
    const bool isRemembered = dragged && m_rowBefore.row == row;
    editRow(row, isRemembered ? m_rowBefore.before : FieldRows::copy(*rows(), row, 1),
            isRemembered ? m_wasDefault : bool(rows()->isDefault()), [&] { editor()->set1Value(row, col, text); });
}

void TableManager::mfieldSetValue(int row, const void *data)
{
    if (isListening())
        editRow(row, FieldRows::copy(*rows(), row, 1), rows()->isDefault(), [&] { editor()->setValue(row, data); });
}

void TableManager::replace(int row, int count, std::shared_ptr<SoMField> values)
{
    if (!mayEdit(nullptr))
        return;
    const OwnEdit own;
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
    if (isListening() && topRow >= 0 && topRow < rows()->getNum() && numValues > 0)
        replace(topRow, numValues, FieldRows::zeros(*rows(), 0));
}

void TableManager::mfieldSwapRows(int first, int second)
{
    const auto isRow = [this](int row) { return row >= 0 && row < rows()->getNum(); };
    if (!isListening() || !isRow(first) || !isRow(second) || first == second || !mayEdit(nullptr))
        return;
    const OwnEdit own;
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
    if (first == second || !mayEdit(nullptr))
        return;
    const OwnEdit own;
    const bool wasDefault = rows()->isDefault();
    if (FieldRows::swapColumns(*rows(), first, second))
        stack()->push(new SwapColumnsCommand(*rows(), first, second, wasDefault));
    refresh();
}

void TableManager::remember()
{
    m_rowBefore.row = m_table ? m_table->currentRow() : -1;
    if (!rows())
        return;
    m_rowBefore.before = FieldRows::copy(*rows(), m_rowBefore.row, 1);
    m_dragged = m_rowBefore.before;
    m_wasDefault = rows()->isDefault();
}

void TableManager::noteDrag()
{
    if (rows())
        m_dragged = FieldRows::copy(*rows(), m_rowBefore.row, 1);
}

/// What is undone in the middle of a drag makes the drag start from there.
void TableManager::stackMoved()
{
    if (!rows())
        return;
    dropMisplaced();
    if (!m_cells->isDragging() || !FieldRows::areSame(*m_dragged, *FieldRows::copy(*rows(), m_rowBefore.row, 1)))
        remember();
}

/// Also freshens the text of a cell whose editor was closed.
void TableManager::cellEditorsChanged()
{
    remember();
    supplyText();
}

/// The editor has written the step without a command, or shows it only.
void TableManager::sliderStepped(const QString &unwritten)
{
    const int row = m_rowBefore.row;
    if (!isListening() || row < 0 || row >= rows()->getNum())
        return;
    const OwnEdit own;
    if (!unwritten.isEmpty() && mayEdit(nullptr))
        editor()->set1Value(row, 0, unwritten);
    const auto now = FieldRows::copy(*rows(), row, 1);
    if (FieldRows::areSame(*m_rowBefore.before, *now) || !mayEdit(&m_rowBefore))
        return;
    record({{row, m_rowBefore.before, now}}, m_wasDefault, m_rowSeries);
    remember();
}

void TableManager::supplyText()
{
    if (m_supply)
        m_supply->supply();
}

void TableManager::paste()
{
    if (!mayEdit(nullptr))
        return;
    const OwnEdit own;
    const bool wasDefault = rows()->isDefault();
    const CellClipboard::Pasted pasted = m_clipboard->paste();
    if (pasted.isChange)
        record({pasted.change}, wasDefault, FieldCommand::noSeries);
    refresh();
    if (!pasted.isAllAccepted)
        Q_EMIT message(tr("%1 does not accept all that was pasted.").arg(FieldText::qualifiedName(*rows())));
}

bool TableManager::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_table && watched != m_keyboard)
        return EditManager::eventFilter(watched, event);
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey)
        return false;
    auto *const key = static_cast<QKeyEvent *>(event);
    const bool isCopy = CellClipboard::isCopy(*key);
    if (!isCopy && !CellClipboard::isPaste(*key))
        return false;
    key->accept();
    if (event->type() == QEvent::KeyPress)
        isCopy ? m_clipboard->copy() : paste();
    return true;
}
