// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "NodeEditor.h"

#include "CoinRef.h"
#include "PluginField.h"

#include <HbEditors.h>

#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include <Inventor/nodes/SoNode.h>

namespace
{
HbEditors *editorFor(SoNode *node)
{
    HbEditors *editor = nullptr;
    HbEditors::getRegisteredEditor(node, editor);
    const bool isAlive = QApplication::allWidgets().contains(editor); // its activation may have deleted it
    return isAlive ? editor : nullptr;
}
} // namespace

NodeEditor::NodeEditor(QWidget *parent) : QWidget(parent), m_title(new QLabel(this)), m_area(new QScrollArea(this))
{
    QFont font = m_title->font();
    font.setBold(true);
    m_title->setFont(font);
    m_title->setContentsMargins(6, 6, 6, 2);
    m_title->setTextFormat(Qt::PlainText);
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_title);
    layout->addWidget(m_area, 1);
    hide();
}

NodeEditor::~NodeEditor()
{
    giveBack();
}

void NodeEditor::setNode(SoNode *node)
{
    commit();
    const std::shared_ptr<SoNode> previous = std::exchange(m_node, coinRef(node)); // until its editor has gone over
    HbEditors *const editor = editorFor(node);
    if (m_editor != static_cast<QFrame *>(editor)) {
        giveBack();
        if (editor)
            borrow(editor);
    }
    setVisible(editor);
}

/// What is being typed belongs to the node that is still shown.
void NodeEditor::commit()
{
    const auto fields = findChildren<PluginField *>();
    for (PluginField *const field : fields)
        field->finish();
    QWidget *const focused = QApplication::focusWidget();
    if (focused && isAncestorOf(focused))
        focused->clearFocus();
}

void NodeEditor::borrow(HbEditors *editor)
{
    m_editor = editor;
    m_formerParent = editor->parentWidget();
    const QString name = QString::fromLatin1(editor->getName().getString());
    m_title->setText(name);
    m_area->setAccessibleName(name);
    m_area->setWidget(editor);
    editor->show();
    connect(editor, &QObject::destroyed, this, &QWidget::hide);
}

void NodeEditor::giveBack()
{
    if (!m_editor)
        return;
    disconnect(m_editor, &QObject::destroyed, this, nullptr);
    m_area->takeWidget();
    m_editor->hide();
    m_editor->setParent(m_formerParent);
    m_editor.clear();
}
