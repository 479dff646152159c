// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CellDelegates.h"

#include "CellCursor.h"
#include "FieldRows.h"
#include "NumberForm.h"

#include <HbMFColorTable.h>
#include <HbMFColorTableItemDelegate.h>
#include <HbMFieldWidget.h>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPainter>
#include <QTableView>
#include <QToolTip>

#include <Inventor/fields/SoMFMatrix.h>

namespace
{
/// A swatch leaves room for the cell's frame and for the colour of the selection.
class SwatchDelegate : public HbMFColorTableItemDelegate
{
public:
    using HbMFColorTableItemDelegate::HbMFColorTableItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        if (index.column() > 0) {
            HbMFColorTableItemDelegate::paint(painter, option, index);
            return;
        }
        HbMFieldTableItemDelegate::paint(painter, option, index);
        const QStyle *const style = option.widget->style();
        const int margin = 1 + style->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget);
        painter->save();
        painter->setBrush(colorOf(*m_owner, index.row()));
        painter->setPen(option.palette.color(QPalette::Dark));
        painter->drawRect(option.rect.adjusted(margin, margin, -margin - 1, -margin - 1));
        painter->restore();
    }
};

/// Single numbers in their fewest digits; of matrices the row's own, not those of the whole field.
class NumberDelegate : public HbMFieldTableItemDelegate
{
public:
    using HbMFieldTableItemDelegate::HbMFieldTableItemDelegate;

protected:
    QString textToShow(const QModelIndex &index, int limit) const override
    {
        const SoMField *const field = m_owner->editedField();
        if (!field)
            return {};
        const QStringList numbers = FieldRows::numberTexts(*field, index.row());
        if (numbers.size() == 1 && index.model()->columnCount() == 1)
            return numbers.first();
        if (!field->isOfType(SoMFMatrix::getClassTypeId()))
            return HbMFieldTableItemDelegate::textToShow(index, limit);
        QStringList rows;
        for (int i = 0; i + 4 <= numbers.size(); i += 4)
            rows += numbers.mid(i, 4).join(QLatin1Char(' '));
        return rows.join(QLatin1String("   "));
    }
};

/// A number that is too wide is rounded: its last digits matter least.
QString fitted(const QString &text, int width, const QFontMetrics &metrics)
{
    constexpr int mostDigits = 6;
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || metrics.horizontalAdvance(text) <= width)
        return text;
    for (int digits = mostDigits; digits > 0; --digits)
        if (const QString rounded = QString::number(number, 'g', digits); metrics.horizontalAdvance(rounded) <= width)
            return rounded;
    return text;
}

template <class Delegate> class CellDelegate : public Delegate
{
public:
    CellDelegate(HbFieldEditorCommandManager &manager, HbMFieldWidget &widget, CellCursor &cursor, QObject *parent)
        : Delegate(&manager, &widget, parent), m_cursor(cursor)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem cell = option;
        const bool isSelected = option.state & QStyle::State_Selected;
        cell.state.setFlag(QStyle::State_Active, isSelected); // what the library highlights
        cell.state.setFlag(QStyle::State_Selected, false); // what it frames, beside the current cell
        Delegate::paint(painter, cell, index);
    }

    /// Tells what a cell is too narrow for.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override
    {
        constexpr int most = 2000; // characters that can be taken in
        const QString text = event->type() == QEvent::ToolTip ? Delegate::textToShow(index, most) : QString();
        if (text.isEmpty() || view->fontMetrics().horizontalAdvance(text) <= option.rect.width())
            return Delegate::helpEvent(event, view, option, index);
        QToolTip::showText(event->globalPos(), text.left(most).toHtmlEscaped(), view, option.rect);
        return true;
    }

    /// Qt would end an editor only some events after Return, and what is typed meanwhile would go into the old cell.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event)->key() : 0;
        const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
        const auto *const edit = qobject_cast<const QLineEdit *>(watched);
        const bool isUp = edit && key == Qt::Key_Up;
        const bool isDown = isReturn || (edit && key == Qt::Key_Down);
        if (!isUp && !isDown && key != Qt::Key_Tab && key != Qt::Key_Backtab)
            return Delegate::eventFilter(watched, event);
        if (edit && edit->isModified() && !edit->hasAcceptableInput())
            return true;
        if (isUp || isDown)
            m_cursor.moveDown(isUp ? -1 : 1);
        else
            m_cursor.openNext(key == Qt::Key_Tab ? 1 : -1);
        return true;
    }

protected:
    QString textToShow(const QModelIndex &index, int limit) const override
    {
        constexpr int margin = 3; // that the text leaves free
        const QString text = Delegate::textToShow(index, limit);
        const SoMField *const field = this->m_owner->editedField();
        const NumberForm::Kind kind = field ? NumberForm::of(*field).kind : NumberForm::Kind::None;
        if (kind != NumberForm::Kind::Single && kind != NumberForm::Kind::Double) // all digits of an index matter
            return text;
        const auto &table = static_cast<const QTableView &>(*this->parent());
        return fitted(text, table.columnWidth(index.column()) - margin, table.fontMetrics());
    }

private:
    CellCursor &m_cursor;
};
} // namespace

void setCellDelegate(HbMFieldTable &table, HbMFieldWidget &widget, HbFieldEditorCommandManager &manager,
                     CellCursor &cursor)
{
    HbMFieldTableItemDelegate *delegate = nullptr;
    if (qobject_cast<HbMFColorTable *>(&table))
        delegate = new CellDelegate<SwatchDelegate>(manager, widget, cursor, &table);
    else
        delegate = new CellDelegate<NumberDelegate>(manager, widget, cursor, &table);
    table.setCellDelegate(delegate);
}
