// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbPopupWidget.h>

#include "EditorButton.h"
#include "FieldEditorSettings.h"
#include "support/GridValidators.h"
#include "support/Icons.h"
#include "support/PopupPlacement.h"
#include "support/TranslatedTexts.h"

#include <HbFieldEditorCommandManager.h>

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

HbPopupWidget::HbPopupWidget(const char *label, HbFieldEditorCommandManager *manager, int rows, int columns,
                             QWidget *parent, const char *name, Qt::WindowFlags flags)
    : HbSFLineWidget(label, manager, parent, name ? name : "HbPopupWidget", flags), m_columns(columns)
{
    buildPopup(rows);
}

HbPopupWidget::HbPopupWidget(HbFieldEditorCommandManager *manager, int rows, int columns, QWidget *parent,
                             const char *name, Qt::WindowFlags flags)
    : HbSFLineWidget(manager, parent, name ? name : "HbPopupWidget", flags), m_columns(columns)
{
    buildPopup(rows);
}

HbPopupWidget::~HbPopupWidget() = default;

void HbPopupWidget::buildPopup(int rows)
{
    m_editButton = newEditorButton(this, QStringLiteral("m_editButton"), Icons::edit());
    m_texts = new TranslatedTexts(this);
    m_texts->explain(m_editButton, [] { return tr("Edit the components"); });
    m_buttonLayout->insertWidget(0, m_editButton);
    connect(m_editButton, &QPushButton::clicked, this, &HbPopupWidget::managePopFramePos);
    m_lineEdit->setEnabled(false);

    m_popupFrame = new QFrame(this, Qt::Popup);
    m_popupFrame->setObjectName(QStringLiteral("m_popupFrame"));
    m_popupFrame->setAccessibleName(m_label->text());
    m_popupFrame->resize(nscsettings_fieldEditor(QStringLiteral("PopupFrameWidth")),
                         nscsettings_fieldEditor(QStringLiteral("PopupFrameHeight")));
    m_popupFrame->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);

    auto *const grid = new QGridLayout(m_popupFrame);
    const int margin = nscsettings_fieldEditor(QStringLiteral("PopupLayoutMargin"));
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setSpacing(nscsettings_fieldEditor(QStringLiteral("PopupLayoutSpacing")));
    grid->setObjectName(QStringLiteral("m_popupFrameLayout"));
    if (rows < 1 || m_columns < 1)
        return;
    m_edits.resize(static_cast<std::size_t>(rows - 1 + (m_columns - 1) * m_columns + 1));
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < m_columns; ++column)
            buildEdit(grid, row, column);
}

void HbPopupWidget::buildEdit(QGridLayout *grid, int row, int column)
{
    auto *const edit = new QLineEdit(m_popupFrame);
    edit->setObjectName(QStringLiteral("popupEdit_%1_%2").arg(row).arg(column));
    m_texts->set(edit, "accessibleName", [=] { return tr("Row %1, column %2").arg(row + 1).arg(column + 1); });
    grid->addWidget(edit, row, column);
    m_edits[static_cast<std::size_t>(row + column * m_columns)] = edit;
    connect(edit, &QLineEdit::editingFinished, this, &HbPopupWidget::setFocusLeaveEvent);
    connect(edit, &QLineEdit::returnPressed, this, &HbPopupWidget::commit); // past a derived setCommandValue()
}

QLineEdit *HbPopupWidget::editAt(int row, int column) const
{
    return m_edits.at(static_cast<std::size_t>(row + column * m_columns));
}

bool HbPopupWidget::edited()
{
    return std::any_of(m_edits.begin(), m_edits.end(),
                       [](const QLineEdit *edit) { return edit && edit->isModified(); });
}

void HbPopupWidget::revertCursorPosition()
{
    for (QLineEdit *const edit : m_edits)
        if (edit)
            edit->setCursorPosition(0);
}

void HbPopupWidget::setValidator(int kind)
{
    for (QLineEdit *const edit : m_edits)
        if (edit)
            GridValidators::install(kind, edit);
}

void HbPopupWidget::managePopFramePos()
{
    if (m_popupFrame->isVisible()) {
        m_popupFrame->hide();
        return;
    }
    m_popupFrame->ensurePolished();
    m_popupFrame->layout()->activate(); // grows the frame to what its edits need
    QPoint position = mapToGlobal(m_editButton->geometry().bottomRight());
    if (const QScreen *const screen = m_editButton->screen()) {
        const QSize size = m_popupFrame->size();
        position = PopupPlacement::place(position, screen->virtualGeometry(), size, m_editButton->size());
        position = PopupPlacement::kept(position, screen->geometry(), size);
    }
    m_popupFrame->move(position);
    const QPointer<HbPopupWidget> self(this);
    refresh(); // which commits where there is no label
    if (!self)
        return;
    m_popupFrame->show();
    if (!m_edits.empty())
        m_edits.front()->setFocus(Qt::PopupFocusReason);
}
