// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFieldTable.h>

#include "ColumnWidths.h"
#include "RowSelection.h"
#include "support/RowValues.h"

#include <HbFieldEditorCommandManager.h>
#include <HbMFieldTableItemDelegate.h>
#include <HbMFieldWidget.h>

#include <QKeyEvent>
#include <QSpinBox>

#include <Inventor/fields/SoMField.h>

HbMFieldTable::HbMFieldTable(HbFieldEditorCommandManager *commandManager, HbMFieldWidget *owner, const char *name)
    : QTableWidget(owner), m_owner(owner), m_commandManager(commandManager),
      m_selection(std::make_unique<RowSelection>(*this)), m_widths(std::make_unique<ColumnWidths>(*this))
{
    setObjectName(name ? QString::fromUtf8(name) : QStringLiteral("HbMFieldTable"));
    initClass();
    connect(model(), &QAbstractItemModel::dataChanged, this, [this](const QModelIndex &cell) {
        if (itemFromIndex(cell))
            m_touched.insert(cell);
        else
            m_touched.remove(cell);
    });
    connect(model(), &QAbstractItemModel::rowsInserted, this, [this] { m_delegate->renumberEditors(); });
    connect(model(), &QAbstractItemModel::rowsRemoved, this, [this] { m_delegate->renumberEditors(); });
}

HbMFieldTable::~HbMFieldTable()
{
    model()->disconnect(this); // it dies later than our members
    m_delegate->setParent(nullptr);
    if (m_committing)
        m_delegate->deleteLater(); // it is what called us
    else
        delete m_delegate;
}

void HbMFieldTable::initClass()
{
    replaceDelegate(new HbMFieldTableItemDelegate(m_commandManager, m_owner, this));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_selection->end();
    setCurrentCell(0, 0);
}

void HbMFieldTable::replaceDelegate(HbMFieldTableItemDelegate *delegate)
{
    delete std::exchange(m_delegate, delegate);
    setItemDelegate(m_delegate);
}

void HbMFieldTable::setCellDelegate(HbMFieldTableItemDelegate *delegate)
{
    delegate->takeSettings(*m_delegate);
    replaceDelegate(delegate);
}

void HbMFieldTable::setCellType(MFTableTypeCell type)
{
    m_delegate->setCellType(type);
}

void HbMFieldTable::setIntEditorRange(int min, int max)
{
    m_delegate->setIntEditorRange(min, max);
}

void HbMFieldTable::setDoubleEditorRange(double min, double max)
{
    m_delegate->setDoubleEditorRange(min, max);
}

void HbMFieldTable::setBoundedValue(bool bounded)
{
    m_delegate->setBoundedValue(bounded);
}

void HbMFieldTable::setNumRows(int row)
{
    if (row < 0)
        return;
    ++m_timesGivenRows;
    QSpinBox *const access = m_owner->accessBox();
    access->setMinimum(row ? 1 : 0);
    access->setMaximum(row);
    setRowCount(row);
}

/// As clearContents(), which looks at every cell and makes the view forget where it was.
void HbMFieldTable::clearTouchedCells()
{
    for (const QPersistentModelIndex &cell : std::exchange(m_touched, {}))
        if (cell.isValid())
            delete takeItem(cell.row(), cell.column());
}

void HbMFieldTable::addRow()
{
    if (!finishEditing() || m_owner->hasLostField() || (!m_commandManager && !m_owner->editedField()))
        return;
    const int row = currentRow();
    clearTouchedCells();
    insertRow(row + 1);
    for (int col = 0; col < columnCount(); ++col)
        setItem(row + 1, col, new QTableWidgetItem);
    QSpinBox *const access = m_owner->accessBox();
    access->setMaximum(access->maximum() + 1); // first: raising the minimum would raise it as well
    access->setMinimum(1);

    const QPointer<HbMFieldTable> self(this);
    if (m_commandManager)
        m_commandManager->mfieldAddRows(row + 1, 1);
    else if (SoMField *const field = m_owner->editedField(); field && !RowValues::insert(*field, row + 1))
        setNumRows(field->getNum()); // it is shorter than the table by now
    if (self)
        setCurrentCell(row, 0);
}

void HbMFieldTable::deleteRow()
{
    if (!finishEditing() || m_owner->hasLostField() || rowCount() == 0)
        return;
    if (!m_selection->isOn()) {
        if (currentRow() >= 0)
            deleteRows(currentRow(), 1);
    } else if (const auto rows = m_selection->first()) {
        deleteRows(rows->top, rows->count);
    }
}

void HbMFieldTable::deleteRows(int top, int count)
{
    QSpinBox *const access = m_owner->accessBox();
    access->setMaximum(access->maximum() - count);
    const int timesGivenRows = m_timesGivenRows;
    const QPointer<HbMFieldTable> self(this);
    if (m_commandManager)
        m_commandManager->mfieldDeleteRows(top, count);
    else if (SoMField *const field = m_owner->editedField())
        RowValues::remove(*field, top, count);
    if (!self)
        return;
    if (rowCount() == 0)
        access->setMinimum(0);
    if (m_timesGivenRows == timesGivenRows) // else the command has refreshed: the rows are gone already
        model()->removeRows(top, count);
}

void HbMFieldTable::swapUpRow()
{
    const int row = currentRow();
    if (row < 1)
        return;
    const QPointer<HbMFieldTable> self(this);
    swapRows(row, row - 1);
    if (self)
        setCurrentCell(row - 1, 0);
}

void HbMFieldTable::swapDownRow()
{
    const int row = currentRow();
    if (row == -1 || row >= rowCount() - 1)
        return;
    const QPointer<HbMFieldTable> self(this);
    swapRows(row, row + 1);
    if (self)
        setCurrentCell(row + 1, 0);
}

void HbMFieldTable::swapRows(int row1, int row2)
{
    if (!finishEditing() || m_owner->hasLostField())
        return;
    if (m_commandManager)
        m_commandManager->mfieldSwapRows(row1, row2);
    else if (SoMField *const field = m_owner->editedField())
        RowValues::swap(*field, row1, row2);
}

void HbMFieldTable::showTableRow(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    executeDelayedItemsLayout(); // else the scroll bar does not reach rows that have just come
    scrollTo(model()->index(row, 0), QAbstractItemView::EnsureVisible);
}

void HbMFieldTable::keyPressEvent(QKeyEvent *event)
{
    const bool typing = isTyping();
    switch (event->key()) {
    case Qt::Key_Plus:
        if (!typing)
            addRow();
        break;
    case Qt::Key_Minus:
    case Qt::Key_Delete:
        if (!typing)
            deleteRow();
        break;
    case Qt::Key_Shift:
        if (!typing)
            m_selection->begin();
        break;
    default:
        QTableWidget::keyPressEvent(event);
    }
    event->accept();
}

void HbMFieldTable::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Shift)
        m_selection->end();
    else
        QTableWidget::keyReleaseEvent(event);
    event->accept();
}

void HbMFieldTable::focusOutEvent(QFocusEvent *event)
{
    if (m_selection->isOn())
        m_selection->end(); // Shift may be released elsewhere
    QTableWidget::focusOutEvent(event);
}

void HbMFieldTable::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    m_widths->share();
}

void HbMFieldTable::showEvent(QShowEvent *event)
{
    constexpr int interval = 200; // milliseconds
    m_followTimer.start(interval, this);
    QTableWidget::showEvent(event);
}

void HbMFieldTable::hideEvent(QHideEvent *event)
{
    m_followTimer.stop();
    QTableWidget::hideEvent(event);
}

void HbMFieldTable::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_followTimer.timerId())
        m_delegate->updateChangedCells(this);
    else
        QTableWidget::timerEvent(event);
}
