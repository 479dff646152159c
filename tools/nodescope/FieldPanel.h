// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDPANEL_H
#define FIELDPANEL_H

#include "TitledArea.h"

#include <memory>
#include <vector>

class FieldObserver;
class FieldRow;
class OriginNotice;
class PanelGrid;
class QUndoStack;
class SoField;
class SoNode;

/**
 * Shows one editor per field of a node, in the order in which the node's class declares them.
 *
 * Edits become steps of an undo stack. The editors follow the fields whatever changes them, and are kept
 * when another node of the same class is shown, with the scroll position and the focus.
 */
class FieldPanel : public TitledArea
{
    Q_OBJECT

public:
    /// The stack is not owned.
    explicit FieldPanel(QUndoStack *stack, QWidget *parent = nullptr);
    ~FieldPanel() override;

    /// Shows @p node and keeps it alive while it is shown; null shows nothing. What was being typed for the
    /// node before is committed to it.
    void setNode(SoNode *node);
    /// Commits what is being typed or dragged.
    void finish();
    /// The editor of the shown node's field of this name; null where it has no such field.
    QWidget *editorOf(const QString &fieldName) const;

Q_SIGNALS:
    /// Something the user should know, in one sentence: why an edit was refused.
    void message(const QString &text);
    /// A node that the shown one refers to is to be selected.
    void nodeWanted(SoNode *node);
    /// The file that the node comes from is to be opened.
    void fileWanted(const QString &fileName);

private:
    /// A copy: what one of them does may have others made, and they live until the event loop goes on.
    std::vector<FieldRow *> rows() const { return m_rows; }
    bool fits(const std::vector<SoField *> &fields) const;
    void reuse(const std::vector<SoField *> &fields);
    void rebuild(const std::vector<SoField *> &fields);
    void removePage();
    int widestLabel() const;
    void showTitle();
    void showFocus(const QWidget *focused);
    FieldRow *rowOf(const SoField *field) const;
    void followField(const SoField *field);
    void followAll();

    QUndoStack *m_stack;
    std::shared_ptr<SoNode> m_node;
    FieldObserver *m_observer;
    OriginNotice *m_notice;
    PanelGrid *m_grid;
    std::vector<FieldRow *> m_rows; ///< children of the area's widget
    unsigned m_requests = 0; ///< to show a node
};

#endif
