// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFieldTable.h>

#include "support/RowValues.h"

#include <HbFieldEditorCommandManager.h>
#include <HbMFieldTableItemDelegate.h>
#include <HbMFieldWidget.h>
#include <HbSlider.h>

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSpinBox>

#include <Inventor/fields/SoMField.h>

HbMFieldTable::HbMFieldTable(HbFieldEditorCommandManager *commandManager, HbMFieldWidget *owner, const char *name)
    : QTableWidget(owner), m_owner(owner), m_commandManager(commandManager)
{
    setObjectName(name ? QString::fromUtf8(name) : QStringLiteral("HbMFieldTable"));
    initClass();
}

HbMFieldTable::~HbMFieldTable()
{
    m_delegate->setParent(nullptr);
    if (m_isCommitting)
        m_delegate->deleteLater(); // it is what called us
    else
        delete m_delegate;
}

void HbMFieldTable::initClass()
{
    m_delegate = new HbMFieldTableItemDelegate(m_commandManager, m_owner, this);
    setItemDelegate(m_delegate);
    setSelectionMode(QAbstractItemView::NoSelection);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setCurrentCell(0, 0);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this] { m_userWidths |= isVisible() && !m_sharingWidth; });
    connect(model(), &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex &cell) { m_touched.emplace_back(cell); });
}

void HbMFieldTable::replaceDelegate(HbMFieldTableItemDelegate *delegate)
{
    delete std::exchange(m_delegate, delegate);
    setItemDelegate(m_delegate);
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

/// What was typed in a row belongs to that row, not to the one that moves there. False if the host deletes the table
/// in answer.
bool HbMFieldTable::finishEditing()
{
    const QPointer<QWidget> editor = m_delegate->openEditor(*this);
    if (!editor)
        return true;
    const QPointer<HbMFieldTable> self(this);
    if (auto *const slider = qobject_cast<HbSlider *>(editor))
        slider->changeValueFromEdit();
    else
        commitData(editor);
    if (self && editor)
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    return self;
}

/// As Qt does, which would go on with a view that the host deletes in answer. It may also speak of an editor whose row
/// went while it was committed.
void HbMFieldTable::commitData(QWidget *editor)
{
    if (m_isCommitting || !editor || m_delegate->openEditor(*this) != editor)
        return;
    const QPointer<HbMFieldTable> self(this);
    const QPointer<QWidget> alive(editor);
    m_isCommitting = true;
    editor->removeEventFilter(m_delegate); // so that losing the focus does not commit again
    m_delegate->commit(editor, model());
    if (!self)
        return;
    m_isCommitting = false;
    if (alive)
        editor->installEventFilter(m_delegate);
}

void HbMFieldTable::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (!m_delegate->openEditor(*this))
        return;
    auto *const slider = qobject_cast<HbSlider *>(editor);
    if (slider && hint == QAbstractItemDelegate::RevertModelCache)
        slider->findChild<QLineEdit *>()->setModified(false); // it reports when the focus goes
    QTableWidget::closeEditor(editor, hint);
}

/// As clearContents(), which looks at every cell and makes the view forget where it was.
void HbMFieldTable::clearTouchedCells()
{
    for (const QPersistentModelIndex &cell : std::exchange(m_touched, {}))
        if (cell.isValid())
            delete takeItem(cell.row(), cell.column());
    m_touched.clear();
}

void HbMFieldTable::addRow()
{
    if (!finishEditing() || (!m_commandManager && !m_owner->editedField()))
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
    else if (SoMField *const field = m_owner->editedField())
        RowValues::insert(*field, row + 1);
    if (self)
        setCurrentCell(row, 0);
}

void HbMFieldTable::deleteRow()
{
    if (!finishEditing() || rowCount() == 0)
        return;
    if (!m_multiSelection) {
        if (currentRow() >= 0)
            deleteRows(currentRow(), 1);
        return;
    }
    const QList<QTableWidgetSelectionRange> ranges = selectedRanges();
    if (!ranges.isEmpty())
        deleteRows(ranges.first().topRow(), ranges.first().rowCount());
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
    if (!finishEditing())
        return;
    if (m_commandManager)
        m_commandManager->mfieldSwapRows(row1, row2);
    else if (SoMField *const field = m_owner->editedField())
        RowValues::swap(*field, row1, row2);
}

void HbMFieldTable::showTableRow(int row)
{
    if (row >= 0 && row < rowCount())
        scrollTo(model()->index(row, 0), QAbstractItemView::EnsureVisible);
}

void HbMFieldTable::editorDestroyed(QObject *editor)
{
    if (!editor)
        return;
    if (const auto *const slider = qobject_cast<HbSlider *>(editor)) {
        const auto *const edit = slider->findChild<QLineEdit *>();
        if (edit && (edit->hasFocus() || edit->rect().contains(edit->mapFromGlobal(QCursor::pos()))))
            return;
    }
    QTableWidget::editorDestroyed(editor);
}

/// Whether the keyboard is in a cell editor: its keys are its own, also those that it does not use.
bool HbMFieldTable::isTyping() const
{
    const QWidget *const focused = QApplication::focusWidget();
    return focused && focused != this && focused != viewport() && isAncestorOf(focused);
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
        if (!typing) {
            setSelectionMode(QAbstractItemView::ContiguousSelection);
            m_multiSelection = true;
        }
        break;
    default:
        QTableWidget::keyPressEvent(event);
    }
    event->accept();
}

void HbMFieldTable::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Shift)
        endMultiSelection();
    else
        QTableWidget::keyReleaseEvent(event);
    event->accept();
}

void HbMFieldTable::endMultiSelection()
{
    clearSelection(); // else a later Delete would remove rows that nobody sees selected
    setSelectionMode(QAbstractItemView::NoSelection);
    m_multiSelection = false;
}

void HbMFieldTable::focusOutEvent(QFocusEvent *event)
{
    if (m_multiSelection)
        endMultiSelection(); // Shift may be released elsewhere
    QTableWidget::focusOutEvent(event);
}

/// Shares the width among the columns, as there is no scrolling sideways, until the user sets one.
void HbMFieldTable::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    if (m_userWidths)
        return;
    const QScopedValueRollback<bool> own(m_sharingWidth, true);
    for (int col = 0, left = viewport()->width(); col < columnCount(); ++col) {
        const int width = left / (columnCount() - col);
        setColumnWidth(col, width);
        left -= width;
    }
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
