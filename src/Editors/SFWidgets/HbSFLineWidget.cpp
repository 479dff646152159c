// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFLineWidget.h>

#include "coin/FieldReader.h"
#include "support/CoinText.h"

#include <HbFieldEditorCommandManager.h>

#include <QKeyEvent>
#include <QLineEdit>

HbSFLineWidget::HbSFLineWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                               const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSFLineWidget", flags), m_lineEdit(addLineEdit())
{
    connect(m_lineEdit, &QLineEdit::editingFinished, this, &HbSFLineWidget::setFocusLeaveEvent);
    commitDirectly(&QLineEdit::returnPressed, SIGNAL(returnPressed()));
}

HbSFLineWidget::HbSFLineWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                               Qt::WindowFlags flags)
    : HbSFieldWidget(manager, parent, name ? name : "HbSFLineWidget", flags), m_lineEdit(addLineEdit())
{
    commitDirectly(&QLineEdit::textChanged, SIGNAL(textChanged(const QString &)));
}

HbSFLineWidget::~HbSFLineWidget() = default;

template <class Signal> void HbSFLineWidget::commitDirectly(Signal signal, const char *signature)
{
    m_lineEdit->installEventFilter(this);
    if (m_commandManager)
        connect(m_lineEdit, signal, this, [this] {
            if (m_commandManager)
                commit();
        });
    else
        // There is no such slot, deliberately: without a manager only leaving the line writes, and Qt says so.
        connect(m_lineEdit, signature, this, SLOT(applyChanges()));
}

/// Without a manager leaves Return to the parent: QLineEdit would take it for the end of the edit.
bool HbSFLineWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_lineEdit || event->type() != QEvent::KeyPress || m_commandManager)
        return HbSFieldWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    event->ignore();
    return true;
}

void HbSFLineWidget::refresh()
{
    if (SoField *const edited = editedField())
        m_lineEdit->setText(CoinText::ofField(*edited));
    if (!m_lineEdit->isEnabled())
        m_lineEdit->setCursorPosition(0); // who cannot move in it sees its start
    HbSFieldWidget::refresh();
}

void HbSFLineWidget::applyChanges()
{
    if (SoField *const edited = editedField())
        FieldReader::set(*edited, CoinText::toSbString(m_lineEdit->text()).getString());
}

bool HbSFLineWidget::edited()
{
    return m_lineEdit->isModified();
}
