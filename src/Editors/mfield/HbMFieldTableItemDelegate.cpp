// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbMFieldTableItemDelegate.h>

#include "TextElision.h"
#include "support/GridValidators.h"
#include "support/NumberText.h"

#include <HbFieldEditorCommandManager.h>
#include <HbIntSlider.h>
#include <HbMFieldTable.h>
#include <HbMFieldWidget.h>
#include <HbRealSlider.h>
#include <HbUIntSlider.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPainter>

namespace
{
constexpr int textMargin = 3; ///< pixels of a cell's width that its text leaves free
} // namespace

HbMFieldTableItemDelegate::HbMFieldTableItemDelegate(HbFieldEditorCommandManager *commandManager, HbMFieldWidget *owner,
                                                     QObject *parent)
    : QItemDelegate(parent), m_owner(owner), m_commandManager(commandManager)
{
}

HbMFieldTableItemDelegate::~HbMFieldTableItemDelegate() = default;

void HbMFieldTableItemDelegate::setCellType(int type)
{
    m_cellType = type;
}

void HbMFieldTableItemDelegate::setIntEditorRange(int min, int max)
{
    m_intMin = min;
    m_intMax = max;
}

void HbMFieldTableItemDelegate::setDoubleEditorRange(double min, double max)
{
    m_realMin = min;
    m_realMax = max;
}

void HbMFieldTableItemDelegate::setBoundedValue(bool bounded)
{
    m_bounded = bounded;
}

void HbMFieldTableItemDelegate::takeSettings(const HbMFieldTableItemDelegate &other)
{
    m_cellType = other.m_cellType;
    m_intMin = other.m_intMin;
    m_intMax = other.m_intMax;
    m_realMin = other.m_realMin;
    m_realMax = other.m_realMax;
    m_bounded = other.m_bounded;
}

QString HbMFieldTableItemDelegate::textToShow(const QModelIndex &index, int limit) const
{
    return m_owner->getCellText(index.row(), index.column(), limit).left(limit);
}

void HbMFieldTableItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const
{
    const QString text = textToShow(index, TextElision::mostThatFit(option.rect.width()) + 1);
    m_shown.insert(index, text);
    const auto *const view = qobject_cast<const QAbstractItemView *>(option.widget);
    QStyleOptionViewItem cell = option;
    if (view && !view->isEnabled() && view->currentIndex() == index)
        cell.state |= QStyle::State_HasFocus; // its rows can be chosen all the same
    paintText(painter, cell, text);
}

/// A focused table is all in the highlight colour, deliberately; a frame tells its current and its selected cells.
/// A disabled one is there to be read, too.
void HbMFieldTableItemDelegate::paintText(QPainter *painter, const QStyleOptionViewItem &option,
                                          const QString &text) const
{
    painter->save();
    const bool isActive = option.state & QStyle::State_Active;
    const bool isDisabled = !isActive && !(option.state & QStyle::State_Enabled);
    const bool isHighlighted = isActive || (isDisabled && option.state & QStyle::State_Selected);
    const QPalette::ColorGroup group = isDisabled ? QPalette::Inactive : option.palette.currentColorGroup();
    if (isHighlighted)
        painter->fillRect(option.rect, option.palette.brush(group, QPalette::Highlight));
    painter->setFont(option.font);
    painter->setPen(option.palette.color(group, isHighlighted ? QPalette::HighlightedText : QPalette::Text));
    const QString line = TextElision::asDrawn(text);
    painter->drawText(option.rect, m_owner->getTextFlags() | Qt::TextSingleLine,
                      TextElision::elided(line, option.rect.width() - textMargin, QFontMetrics(option.font)));
    if (option.state & (QStyle::State_HasFocus | QStyle::State_Selected))
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

void HbMFieldTableItemDelegate::updateChangedCells(QAbstractItemView *view) const
{
    const QRect visible = view->viewport()->rect();
    for (auto shown = m_shown.begin(); shown != m_shown.end();) {
        const QModelIndex cell = shown.key();
        const QRect place = cell.isValid() ? view->visualRect(cell) : QRect();
        if (!place.intersects(visible)) {
            shown = m_shown.erase(shown);
            continue;
        }
        if (textToShow(cell, TextElision::mostThatFit(place.width()) + 1) != shown.value())
            view->update(cell);
        ++shown;
    }
}

std::vector<QWidget *> HbMFieldTableItemDelegate::openEditors(const QAbstractItemView &view) const
{
    std::vector<QWidget *> open;
    for (auto editor = m_editorCells.begin(); editor != m_editorCells.end(); ++editor)
        if (view.indexWidget(editor.value()) == editor.key()) // one that was closed lives on for a while
            open.push_back(editor.key());
    return open;
}

bool HbMFieldTableItemDelegate::hasMade(const QWidget *editor) const
{
    return m_editorCells.contains(const_cast<QWidget *>(editor));
}

void HbMFieldTableItemDelegate::renumberEditors() const
{
    for (auto editor = m_editorCells.begin(); editor != m_editorCells.end(); ++editor)
        if (auto *const slider = qobject_cast<HbSlider *>(editor.key()))
            slider->setRow(editor.value().row());
}

void HbMFieldTableItemDelegate::commit(QWidget *editor, QAbstractItemModel *model) const
{
    setModelData(editor, model, QModelIndex(m_editorCells.value(editor)));
}

QWidget *HbMFieldTableItemDelegate::kept(QWidget *editor, const QModelIndex &cell) const
{
    m_editorCells.insert(editor, cell);
    connect(editor, &QObject::destroyed, this, [this, editor] { m_editorCells.remove(editor); });
    return editor;
}

QWidget *HbMFieldTableItemDelegate::createSlider(QWidget *parent, int row, const QString &text) const
{
    const auto whole = [&](auto *slider, auto min, auto max) {
        slider->setValidLimits(min, max, m_bounded);
        slider->setValue(text);
        return slider;
    };
    const auto integer = [&](HbSlider::SliderType type) {
        return whole(new HbIntSlider(type, HbSlider::TableCell, m_owner, m_commandManager, parent, row, 0), m_intMin,
                     m_intMax);
    };
    const auto natural = [&](HbSlider::SliderType type) {
        return whole(new HbUIntSlider(type, HbSlider::TableCell, m_owner, m_commandManager, parent, row, 0),
                     static_cast<unsigned int>(qMax(m_intMin, 0)), static_cast<unsigned int>(qMax(m_intMax, 0)));
    };
    switch (m_cellType) {
    case HbMFieldTable::ShortCell:
        return integer(HbSlider::Int16);
    case HbMFieldTable::UShortCell:
        return natural(HbSlider::UInt16);
    case HbMFieldTable::Int32Cell:
        return integer(HbSlider::Int32);
    case HbMFieldTable::UInt32Cell:
        return natural(HbSlider::UInt32);
    case HbMFieldTable::RealCell: {
        auto *const slider = new HbRealSlider(HbSlider::TableCell, m_owner, m_commandManager, parent, row, 0);
        slider->setValidLimits(static_cast<float>(m_realMin), static_cast<float>(m_realMax), m_bounded);
        slider->setRealValue(NumberText::toFloat(text));
        return slider;
    }
    default:
        return nullptr;
    }
}

QWidget *HbMFieldTableItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                                 const QModelIndex &index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (index.column() == 0 && index.model()->columnCount() == 1) {
        if (QWidget *const slider = createSlider(parent, index.row(), text)) {
            slider->setAutoFillBackground(true);
            slider->setFocusProxy(slider->findChild<QLineEdit *>()); // where the key goes that opened the editor
            return kept(slider, index);
        }
    }
    auto *const edit = new QLineEdit(parent);
    edit->setObjectName(QStringLiteral("qt_lineeditor"));
    edit->setFrame(false);
    edit->setMaxLength(std::numeric_limits<int>::max()); // QLineEdit itself would cut at 32767
    setValidator(edit);
    edit->setText(text);
    edit->setFocusPolicy(Qt::StrongFocus);
    return kept(edit, index);
}

void HbMFieldTableItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (auto *const edit = qobject_cast<QLineEdit *>(editor))
        edit->setText(text);
    else if (auto *const real = dynamic_cast<HbRealSlider *>(editor))
        real->setRealValue(NumberText::toFloat(text));
    else if (auto *const whole = qobject_cast<HbSlider *>(editor))
        whole->setValue(text);
}

void HbMFieldTableItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (auto *const edit = qobject_cast<QLineEdit *>(editor))
        commitText(edit, model, index, index.column(), Qt::DisplayRole);
    else
        QItemDelegate::setModelData(editor, model, index);
}

void HbMFieldTableItemDelegate::commitText(QLineEdit *edit, QAbstractItemModel *model, const QModelIndex &index,
                                           int col, int role) const
{
    auto *const table = qobject_cast<QTableWidget *>(parent());
    if (table && table->cellWidget(index.row(), index.column()) != edit)
        table->removeCellWidget(index.row(), index.column());
    if (!edit->isModified())
        return;
    const QString text = edit->text();
    const QPersistentModelIndex cell(index); // the host may answer by removing rows, or the whole editor
    const QPointer<QAbstractItemModel> alive(model);
    if (!m_owner->hasLostField() && (!edit->validator() || edit->hasAcceptableInput())) {
        if (m_commandManager)
            m_commandManager->mfieldSet1Value(index.row(), col, text, nullptr);
        else
            m_owner->set1Value(index.row(), col, text);
    }
    if (alive && cell.isValid())
        alive->setData(cell, text, role);
}

void HbMFieldTableItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                                     const QModelIndex &) const
{
    editor->setGeometry(option.rect);
}

void HbMFieldTableItemDelegate::setValidator(QLineEdit *edit) const
{
    using Short = std::numeric_limits<qint16>;
    using UShort = std::numeric_limits<quint16>;
    constexpr int decimals = 6;
    switch (m_cellType) {
    case HbMFieldTable::ShortCell:
        edit->setValidator(new IntValidator(edit, Short::min(), Short::max()));
        break;
    case HbMFieldTable::UShortCell:
        edit->setValidator(new IntValidator(edit, 0, UShort::max()));
        break;
    case HbMFieldTable::WholeCell:
        edit->setValidator(new IntValidator(edit));
        break;
    case HbMFieldTable::EmptyRangeCell:
    case HbMFieldTable::Int32Cell:
    case HbMFieldTable::UInt32Cell:
        edit->setValidator(new IntValidator(edit, 0, -1)); // which accepts nothing, deliberately
        break;
    case HbMFieldTable::RealCell:
        edit->setValidator(
            new RealValidator(edit, -GridValidators::largestFloat, GridValidators::largestFloat, decimals));
        break;
    case HbMFieldTable::DoubleCell:
        edit->setValidator(new RealValidator(edit));
        break;
    default:
        break;
    }
}
