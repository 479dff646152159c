// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbTablePopupWidget.h>

#include "Editors/EditorButton.h"
#include "Editors/FieldEditorSettings.h"
#include "support/GridValidators.h"
#include "support/Icons.h"
#include "support/NumberText.h"
#include "support/PopupPlacement.h"
#include "support/TranslatedTexts.h"

#include <HbFieldEditorCommandManager.h>
#include <HbMFieldTable.h>
#include <HbTablePopupLineEdit.h>

#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>

HbTablePopupWidget::HbTablePopupWidget(HbFieldEditorCommandManager *commandManager, int rows, int columns,
                                       QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbTablePopupWidget(nullptr, commandManager, rows, columns, parent, name, flags)
{
}

HbTablePopupWidget::HbTablePopupWidget(const char *fieldType, HbFieldEditorCommandManager *commandManager, int rows,
                                       int columns, QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbMFieldWidget(fieldType, commandManager, parent, name ? name : "HbTablePopupWidget", flags)
{
    initClass(rows, columns);
}

HbTablePopupWidget::~HbTablePopupWidget()
{
    delete m_popupFrame; // an edit that has the focus would report to an owner that is half gone
}

void HbTablePopupWidget::initClass(int rows, int columns)
{
    m_editButton = newEditorButton(this, QStringLiteral("m_editButton"), Icons::edit());
    (new TranslatedTexts(this))->explain(m_editButton, [] { return tr("Edit the components"); });
    m_editButton->setFocusPolicy(Qt::NoFocus);
    m_moveSpacer->changeSize(nscsettings_fieldEditor(QStringLiteral("MFAccessMoveSpacerWidth"))
                                 - m_editButton->maximumWidth(),
                             nscsettings_fieldEditor(QStringLiteral("MFAccessMoveSpacerHeight")),
                             QSizePolicy::Expanding, QSizePolicy::Minimum);
    constexpr int behindTheAccessBox = 4;
    m_buttonsLayout->insertWidget(behindTheAccessBox, m_editButton);
    m_table->setEnabled(false);

    m_popupFrame = new QFrame(this, Qt::Tool | Qt::FramelessWindowHint);
    m_popupFrame->setObjectName(QStringLiteral("m_popupFrame"));
    m_popupFrame->resize(nscsettings_fieldEditor(QStringLiteral("PopupFrameWidth")),
                         nscsettings_fieldEditor(QStringLiteral("PopupFrameHeight")));
    m_popupFrame->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    auto *const grid = new QGridLayout(m_popupFrame);
    grid->setSizeConstraint(QLayout::SetNoConstraint); // popupSize() decides
    const int margin = nscsettings_fieldEditor(QStringLiteral("PopupLayoutMargin"));
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(nscsettings_fieldEditor(QStringLiteral("PopupLayoutSpacing")));
    grid->setObjectName(QStringLiteral("m_popupFrameLayout"));
    for (int index = 0; index < rows * columns; ++index) {
        auto *const edit = new HbTablePopupLineEdit(index, this, m_popupFrame, nullptr);
        edit->setFrame(false); // for all of them to be legible in a frame of that size
        grid->addWidget(edit, index / columns, index % columns);
        connect(edit, &QLineEdit::textChanged, edit, &HbTablePopupLineEdit::setCurrentValue);
        m_popupEdits.push_back(edit);
    }
    m_filledTexts.resize(m_popupEdits.size());
    m_table->setColumnCount(1);
    connect(m_editButton, &QPushButton::clicked, this, &HbTablePopupWidget::setEditFrame);

    // the table takes no input itself, but a person must choose the row
    m_table->viewport()->installEventFilter(this);
    installEventFilter(this);
    m_popupFrame->installEventFilter(this);
    connect(m_table, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (m_popupFrame->isVisible())
            updatePopupLines(row);
    });
    connect(m_table->model(), &QAbstractItemModel::rowsRemoved, this, [this] {
        if (m_popupFrame->isVisible())
            updatePopupLines(-1); // Qt has told the row before the rows went
    });
}

void HbTablePopupWidget::setEditFrame()
{
    updatePopupLines(-1);
    managePopFramePos();
}

/// As the settings say or, where letters are higher, as high as the rows of edits need.
QSize HbTablePopupWidget::popupSize() const
{
    const auto *const grid = static_cast<const QGridLayout *>(m_popupFrame->layout());
    const QMargins margins = grid->contentsMargins() + m_popupFrame->contentsMargins();
    const int rows = m_popupEdits.empty() ? 0 : grid->rowCount();
    const int needed = margins.top() + margins.bottom() + qMax(rows - 1, 0) * grid->verticalSpacing()
        + rows * m_popupFrame->fontMetrics().height();
    return {nscsettings_fieldEditor(QStringLiteral("PopupFrameWidth")),
            qMax(nscsettings_fieldEditor(QStringLiteral("PopupFrameHeight")), needed)};
}

void HbTablePopupWidget::managePopFramePos()
{
    if (m_popupFrame->isVisible()) {
        m_popupFrame->hide();
        return;
    }
    m_popupFrame->ensurePolished();
    m_popupFrame->resize(popupSize());
    const QPoint corner = mapToGlobal(QPoint());
    QPoint position(corner.x() - m_popupFrame->width(), corner.y()); // its right edge one pixel left of the widget
    if (const QScreen *const here = screen())
        position = PopupPlacement::kept(position, here->geometry(), m_popupFrame->size());
    m_popupFrame->move(position);
    m_popupFrame->show();
}

void HbTablePopupWidget::updatePopupLines(int row)
{
    const QScopedValueRollback<bool> quiet(m_filling, true);
    const int shown = row == -1 ? m_table->currentRow() : row;
    for (std::size_t i = 0; i < m_popupEdits.size(); ++i) {
        m_filledTexts[i] = getPopupValue(shown, static_cast<int>(i));
        m_popupEdits[i]->setText(m_filledTexts[i]);
    }
}

void HbTablePopupWidget::refresh()
{
    HbMFieldWidget::refresh();
    if (!m_popupFrame->isVisible())
        return;
    const QScopedValueRollback<bool> quiet(m_filling, true);
    for (std::size_t i = 0; i < m_popupEdits.size(); ++i) {
        const QString value = getPopupValue(m_table->currentRow(), static_cast<int>(i));
        const QString text = m_popupEdits[i]->text();
        bool isNumber = false;
        text.toFloat(&isNumber);
        if (text == value || (isNumber && NumberText::fromFloat(NumberText::toFloat(text)) == value))
            continue; // unchanged, or typed so
        m_filledTexts[i] = value;
        m_popupEdits[i]->setText(value);
    }
}

void HbTablePopupWidget::revertCursorPosition()
{
    for (QLineEdit *const edit : m_popupEdits)
        edit->setCursorPosition(0);
}

void HbTablePopupWidget::setValidator(int kind)
{
    for (QLineEdit *const edit : m_popupEdits)
        GridValidators::install(kind, edit);
}

QString HbTablePopupWidget::getPopupValue(int, int)
{
    return {};
}

void HbTablePopupWidget::reportPopupEdit()
{
    if (m_filling || hasLostField())
        return;
    constexpr int wholeValue = -1;
    const QString noText(QLatin1String("")); // empty, not null: that would carry no value
    if (m_commandManager)
        m_commandManager->mfieldSet1Value(m_table->currentRow(), wholeValue, noText, nullptr);
    else
        set1Value(m_table->currentRow(), wholeValue, noText);
}

bool HbTablePopupWidget::chooseRow(int row)
{
    if (row < 0 || row >= m_table->rowCount())
        return false;
    m_table->setCurrentCell(row, 0);
    return true;
}

bool HbTablePopupWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_table->viewport() && event->type() == QEvent::MouseButtonPress)
        setFocus(Qt::MouseFocusReason); // so that Up and Down arrive
    if (watched == m_table->viewport())
        return event->type() == QEvent::MouseButtonPress
            && chooseRow(m_table->rowAt(static_cast<QMouseEvent *>(event)->pos().y()));
    if (event->type() != QEvent::KeyPress)
        return false;
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Up:
        return chooseRow(m_table->currentRow() - 1);
    case Qt::Key_Down:
        return chooseRow(m_table->currentRow() + 1);
    case Qt::Key_Escape:
        if (!m_popupFrame->isVisible())
            return false;
        m_popupFrame->hide();
        return true;
    default:
        return false;
    }
}

void HbTablePopupWidget::hideEvent(QHideEvent *event)
{
    m_popupFrame->hide();
    HbMFieldWidget::hideEvent(event);
}
