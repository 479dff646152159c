// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include <HbSFLineWidget.h>

#include "support/CoinText.h"

#include <HbFieldEditorCommandManager.h>

#include <QKeyEvent>
#include <QLineEdit>

namespace
{
/// Leaves Return to the parent: QLineEdit would take it for the end of the edit.
class ReturnGuard : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        event->ignore();
        return true;
    }
};
} // namespace

HbSFLineWidget::HbSFLineWidget(const char *label, HbFieldEditorCommandManager *manager, QWidget *parent,
                               const char *name, Qt::WindowFlags flags)
    : HbSFieldWidget(label, manager, parent, name ? name : "HbSFLineWidget", flags), m_lineEdit(addLineEdit())
{
    connect(m_lineEdit, &QLineEdit::editingFinished, this, &HbSFLineWidget::setFocusLeaveEvent);
    commitDirectly(SIGNAL(returnPressed()));
}

HbSFLineWidget::HbSFLineWidget(HbFieldEditorCommandManager *manager, QWidget *parent, const char *name,
                               Qt::WindowFlags flags)
    : HbSFieldWidget(manager, parent, name ? name : "HbSFLineWidget", flags), m_lineEdit(addLineEdit())
{
    commitDirectly(SIGNAL(textChanged(const QString &)));
}

HbSFLineWidget::~HbSFLineWidget() = default;

void HbSFLineWidget::commitDirectly(const char *signal)
{
    if (m_commandManager) {
        connect(m_lineEdit, signal, m_commandManager, SLOT(sfieldSetValue()));
        return;
    }
    // There is no such slot, deliberately: without a manager only leaving the line writes, and Qt says so.
    connect(m_lineEdit, signal, this, SLOT(applyChanges()));
    m_lineEdit->installEventFilter(new ReturnGuard(m_lineEdit));
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
        edited->set(CoinText::toSbString(m_lineEdit->text()).getString());
}

bool HbSFLineWidget::edited()
{
    return m_lineEdit->isModified();
}
