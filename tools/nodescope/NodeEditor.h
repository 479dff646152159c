// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef NODEEDITOR_H
#define NODEEDITOR_H

#include "FieldObserver.h"
#include "TitledArea.h"

#include <QFrame>
#include <QPointer>

#include <memory>

class HbEditors;
class SoNode;

/**
 * Shows the editor that a plug-in has registered for the selected node; hidden while there is none.
 *
 * The editor stays the plug-in's: it is borrowed while its node is selected, and then goes back to its former parent.
 */
class NodeEditor : public TitledArea
{
    Q_OBJECT

public:
    explicit NodeEditor(QWidget *parent = nullptr);
    ~NodeEditor() override;

    /// Asks the registry for the editor of @p node, shows it, and keeps the node alive meanwhile. Null gives back.
    void setNode(SoNode *node);

Q_SIGNALS:
    /// Something the user should know, in one sentence.
    void message(const QString &text);

private:
    template <class Call> void guarded(Call call);
    HbEditors *editorFor(SoNode *node);
    void show(HbEditors *editor);
    void follow();
    void commit();
    void borrow(HbEditors *editor);
    void giveBack();

    std::shared_ptr<SoNode> m_node;
    FieldObserver m_observer;
    bool m_isAsking = false;
    QPointer<QFrame> m_editor;
    QPointer<QWidget> m_formerParent;
};

#endif
