// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "NodeEditor.h"

#include "CoinRef.h"
#include "PluginField.h"

#include <HbFieldEditors.h>

#include <QApplication>
#include <QLabel>
#include <QScopedValueRollback>
#include <QScrollArea>

#include <Inventor/nodes/SoNode.h>

#include <exception>

NodeEditor::NodeEditor(QWidget *parent) : TitledArea(parent)
{
    hide();
    connect(&m_observer, &FieldObserver::fieldChanged, this, &NodeEditor::follow);
    connect(&m_observer, &FieldObserver::nodeChanged, this, &NodeEditor::follow);
}

NodeEditor::~NodeEditor()
{
    giveBack();
}

/// Runs code of a plug-in, which may throw.
template <class Call> void NodeEditor::guarded(Call call)
{
    try {
        call();
    } catch (const std::exception &error) {
        Q_EMIT message(tr("A plug-in's editor failed: %1").arg(QString::fromUtf8(error.what())));
    } catch (...) {
        Q_EMIT message(tr("A plug-in's editor failed"));
    }
}

HbEditors *NodeEditor::editorFor(SoNode *node)
{
    HbEditors *editor = nullptr;
    guarded([&] { HbEditors::getRegisteredEditor(node, editor); });
    const bool isAlive = QApplication::allWidgets().contains(editor); // its activation may have deleted it
    return isAlive ? editor : nullptr;
}

void NodeEditor::setNode(SoNode *node)
{
    if (m_isAsking && node == m_node.get())
        return;
    commit();
    const std::shared_ptr<SoNode> asked = coinRef(node);
    const std::shared_ptr<SoNode> previous = std::exchange(m_node, asked); // until its editor has gone over
    HbEditors *editor = nullptr;
    {
        const QScopedValueRollback<bool> asking(m_isAsking, true);
        editor = editorFor(node);
    }
    if (m_node != asked) // another has been selected meanwhile
        return;
    if (m_editor != static_cast<QFrame *>(editor)) {
        giveBack();
        if (editor)
            borrow(editor);
    }
    m_observer.watch(dynamic_cast<HbFieldEditors *>(editor) ? node : nullptr);
    if (editor)
        show(editor);
    setVisible(editor);
}

void NodeEditor::show(HbEditors *editor)
{
    QString name;
    guarded([&] { name = QString::fromLatin1(editor->getName().getString()); });
    m_title->setText(name);
    m_area->setAccessibleName(name);
    editor->show();
    m_area->updateGeometry(); // it was measured while the editor was hidden
}

/// A field editor that is registered itself is refreshed by nobody else.
void NodeEditor::follow()
{
    auto *const editor = dynamic_cast<HbFieldEditors *>(m_editor.data());
    if (editor && !editor->isAncestorOf(QApplication::focusWidget()))
        editor->refresh();
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
    m_area->setWidget(editor);
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
