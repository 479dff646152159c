// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TableManager.h"

#include "CellText.h"
#include "FieldCommand.h"
#include "FieldRows.h"
#include "FieldText.h"
#include "WriteWatch.h"

#include <HbMFColorTable.h>
#include <HbMFieldTable.h>
#include <HbMFieldWidget.h>
#include <HbSlider.h>
#include <HbTablePopupWidget.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSlider>
#include <QUndoStack>

#include <Inventor/SbString.h>
#include <Inventor/fields/SoMFName.h>
#include <Inventor/fields/SoMFString.h>

#include <algorithm>

void TableManager::setEditor(HbFieldEditors *editor)
{
    EditManager::setEditor(editor);
    m_widget = dynamic_cast<HbMFieldWidget *>(editor);
    m_table = editor->findChild<HbMFieldTable *>();
    connect(m_table, &QTableWidget::currentCellChanged, this, &TableManager::supplyText);
    connect(stack(), &QUndoStack::indexChanged, this, [this] {
        if (!isDragging())
            remember();
    });
    m_table->installEventFilter(this);
    m_table->viewport()->installEventFilter(this);
}

void TableManager::setField(SoField *field)
{
    EditManager::setField(field);
    m_rowBefore.row = -1;
    m_rowSeries = FieldCommand::newSeries();
}

void TableManager::refresh()
{
    EditManager::refresh();
    showSomeRows();
    if (m_table->currentRow() < 0 && m_table->rowCount() > 0)
        m_table->setCurrentCell(0, 0);
    if (!isDragging())
        remember();
    supplyText();
}

/// As high as its rows, up to some.
void TableManager::showSomeRows()
{
    constexpr int mostRows = 8;
    const int rowHeight = m_table->verticalHeader()->defaultSectionSize();
    const int height = m_table->horizontalHeader()->sizeHint().height() + 2 * m_table->frameWidth()
        + qBound(1, m_table->rowCount(), mostRows) * rowHeight;
    if (m_table->minimumHeight() == height && m_table->maximumHeight() == height)
        return;
    m_table->setFixedHeight(height);
}

void TableManager::finish()
{
    m_table->finishEditing();
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
    const auto after = FieldRows::copy(*rows(), row, 1);
    const bool isSame = FieldRows::areSame(*before, *after);
    if (!isSame)
        record({{row, before, after}}, wasDefault, FieldCommand::noSeries);
    else if (watch.isWritten())
        rows()->setDefault(wasDefault);
    m_rowSeries = FieldCommand::newSeries();
    refresh();
    remember();
}

void TableManager::mfieldSet1Value(int row, int col, QString text, SbString *previousData)
{
    const std::unique_ptr<SbString> dragged(previousData); // its text is rounded; ours is the exact value
    if (!isListening())
        return;
    const bool isRemembered = dragged && m_rowBefore.row == row;
    editRow(row, isRemembered ? m_rowBefore.before : FieldRows::copy(*rows(), row, 1),
            isRemembered ? m_wasDefault : bool(rows()->isDefault()), [&] { m_widget->set1Value(row, col, text); });
}

void TableManager::mfieldSetValue(int row, const void *data)
{
    if (isListening())
        editRow(row, FieldRows::copy(*rows(), row, 1), rows()->isDefault(), [&] { m_widget->setValue(row, data); });
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
    FieldRows::replace(*rows(), first, 1, *secondValue);
    FieldRows::replace(*rows(), second, 1, *firstValue);
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
    m_rowBefore.row = m_table->currentRow();
    if (!rows())
        return;
    m_rowBefore.before = FieldRows::copy(*rows(), m_rowBefore.row, 1);
    m_wasDefault = rows()->isDefault();
}

/// Watches the slider of a cell editor that was opened, and freshens the cell's text when one is closed.
void TableManager::cellEditorsChanged()
{
    const auto sliders = m_table->viewport()->findChildren<QSlider *>();
    for (const QSlider *const slider : sliders) {
        connect(slider, &QSlider::sliderPressed, this, &TableManager::remember, Qt::UniqueConnection);
        connect(slider, &QSlider::valueChanged, this, &TableManager::sliderStepped, Qt::UniqueConnection);
    }
    remember();
    supplyText();
}

/// A step by key, wheel or groove, which the editor writes without a command.
void TableManager::sliderStepped()
{
    const auto *const slider = qobject_cast<const QSlider *>(sender());
    const int row = m_rowBefore.row;
    if (!isListening() || (slider && slider->isSliderDown()) || row < 0 || row >= rows()->getNum())
        return;
    const auto now = FieldRows::copy(*rows(), row, 1);
    if (FieldRows::areSame(*m_rowBefore.before, *now) || !mayEdit(&m_rowBefore))
        return;
    const OwnEdit own;
    record({{row, m_rowBefore.before, now}}, m_wasDefault, m_rowSeries);
    remember();
}

bool TableManager::isDragging() const
{
    const auto sliders = m_table->viewport()->findChildren<QSlider *>();
    return std::any_of(sliders.begin(), sliders.end(), [](const QSlider *slider) { return slider->isSliderDown(); });
}

/// The table's cells hold no text, so that an editor would open empty: the current one gets what it shows.
void TableManager::supplyText()
{
    const QModelIndex cell = m_table->currentIndex();
    const auto *const editor = m_table->viewport()->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    const auto *const slider = qobject_cast<const HbSlider *>(editor);
    const bool isEditing = slider ? slider->isEdited() || isDragging() : editor != nullptr; // a slider follows
    if (!cell.isValid() || isEditing || dynamic_cast<HbTablePopupWidget *>(m_widget))
        return;
    const QString text = m_widget->getFieldValue(cell.row(), componentOf(cell.column()));
    if (cell.data(Qt::EditRole).toString() != text)
        m_table->model()->setData(cell, text, Qt::EditRole);
}

/// A table of colours begins with their swatches.
int TableManager::componentOf(int column) const
{
    return qobject_cast<HbMFColorTable *>(m_table) ? column - 1 : column;
}

void TableManager::copyCells() const
{
    const QList<QTableWidgetSelectionRange> ranges = m_table->selectedRanges();
    const QModelIndex current = m_table->currentIndex();
    if (ranges.isEmpty() && !current.isValid())
        return;
    const bool isSelected = !ranges.isEmpty();
    const int top = isSelected ? ranges.first().topRow() : current.row();
    const int bottom = isSelected ? ranges.first().bottomRow() : current.row();
    const int left = isSelected ? ranges.first().leftColumn() : current.column();
    const int right = isSelected ? ranges.first().rightColumn() : current.column();
    QVector<QStringList> cells;
    for (int row = top; row <= bottom; ++row) {
        cells.append(QStringList());
        for (int column = left; column <= right; ++column)
            if (componentOf(column) >= 0)
                cells.last() += m_widget->getFieldValue(row, componentOf(column));
    }
    QGuiApplication::clipboard()->setText(CellText::join(cells));
}

/// Whether a cell takes this text; what is no number would count as 0 there.
bool TableManager::accepts(int row, int column, const QString &text) const
{
    if (rows()->isOfType(SoMFString::getClassTypeId()) || rows()->isOfType(SoMFName::getClassTypeId()))
        return true;
    bool wasNumber = false;
    bool isNumber = false;
    bool isInteger = false;
    m_widget->getFieldValue(row, column).toDouble(&wasNumber);
    text.toDouble(&isNumber);
    text.toLongLong(&isInteger, 0);
    return isNumber || isInteger || !wasNumber;
}

/// One step and one notification for all cells.
void TableManager::pasteCells()
{
    const QVector<QStringList> cells = CellText::split(QGuiApplication::clipboard()->text());
    if (cells.isEmpty() || dynamic_cast<HbTablePopupWidget *>(m_widget) || !mayEdit(nullptr))
        return;
    const OwnEdit own;
    const int top = qBound(0, m_table->currentRow(), rows()->getNum());
    const int left = qMax(componentOf(m_table->currentColumn()), 0);
    const int count = static_cast<int>(cells.size());
    const bool wasDefault = rows()->isDefault();
    const auto before = FieldRows::copy(*rows(), top, count);
    const SbBool wasNotifying = rows()->enableNotify(FALSE);
    if (const int missing = count - before->getNum(); missing > 0)
        FieldRows::replace(*rows(), rows()->getNum(), 0, *FieldRows::zeros(*rows(), missing));
    for (int line = 0; line < count; ++line)
        for (int i = 0; i < cells[line].size(); ++i)
            if (accepts(top + line, left + i, cells[line][i]))
                m_widget->set1Value(top + line, left + i, cells[line][i]);
    rows()->enableNotify(wasNotifying);
    const auto after = FieldRows::copy(*rows(), top, count);
    if (FieldRows::areSame(*before, *after)) {
        rows()->setDefault(wasDefault);
    } else {
        rows()->touch();
        record({{top, before, after}}, wasDefault, FieldCommand::noSeries);
    }
    refresh();
}

bool TableManager::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_table->viewport()) {
        if (event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildRemoved)
            QMetaObject::invokeMethod(this, &TableManager::cellEditorsChanged, Qt::QueuedConnection);
        return false;
    }
    if (watched != m_table)
        return EditManager::eventFilter(watched, event);
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey)
        return false;
    auto *const key = static_cast<QKeyEvent *>(event);
    const bool isCopy = key->key() == Qt::Key_C && key->modifiers() & Qt::ControlModifier; // Shift selects
    const bool isPaste = key->matches(QKeySequence::Paste);
    if (!isCopy && !isPaste)
        return false;
    key->accept();
    if (event->type() == QEvent::KeyPress)
        isCopy ? copyCells() : pasteCells();
    return true;
}
