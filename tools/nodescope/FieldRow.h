// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef FIELDROW_H
#define FIELDROW_H

#include <HbGUIManagement.h>

#include <QHash>
#include <QObject>
#include <QPointer>

#include <Inventor/SbName.h>
#include <Inventor/SoType.h>

class EditManager;
class HbFieldEditors;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QUndoStack;
class QWidget;
class RowState;
class SoField;
class SoNode;
struct EditorKind;

/**
 * One line of the panel: the editor of a field with its manager, and what the panel adds to it.
 *
 * It marks a field whose value comes from elsewhere, takes back an unfinished text on Escape or when the
 * edit is left, and leaves undo keys to the application.
 */
class FieldRow : public QObject
{
    Q_OBJECT

public:
    /// An editor and the manager that it was made with.
    struct Made {
        EditManager *manager;
        HbFieldEditors *editor;
    };

    /// Gives @p create a manager for @p field. The manager is null if no editor was made.
    static Made make(const SoField &field, QUndoStack *stack, const HbGUIManagement::FieldEditorFactory &create);

    /// Makes the editor that the field's type asks for, as a child of @p parent.
    FieldRow(SoField &field, QUndoStack *stack, QWidget *parent);
    /// Takes an editor that is there, and owns its manager.
    FieldRow(SoField &field, const Made &made, QObject *parent);

    QWidget *widget() const;
    const SoField *field() const { return m_field; }
    /// Whether setField() may be given @p field: it has the same name and type.
    bool fits(const SoField &field) const;

    /// Goes over to the field of another node of the same class.
    void setField(SoField &field);
    /// Commits what is being typed or dragged.
    void finish();
    /// Lets go of the field.
    void release();
    /// Shows the field's value and drops what is being typed.
    void refresh();
    /// Like refresh(), but leaves an editor alone in which the user is typing or dragging.
    void follow();

    /// Between this field and the clipboard.
    void copyValue();
    void pasteValue();
    void setToDefault();
    void setIgnored(bool ignored);
    /// Whether the field differs from its default and can be set to it.
    bool isChanged() const;
    /// Whether the field cannot be edited.
    bool isLocked() const;

    /// Shows in the name whether the keyboard is here.
    void setFocused(bool focused);

    int labelWidth() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void message(const QString &text);
    /// The node that drives the field or that it holds is to be selected.
    void nodeWanted(SoNode *node);

private:
    void nameControls();
    void adoptControls();
    void updateMark();
    bool isBusy() const;
    bool handleKey(QLineEdit &edit, QKeyEvent &event);
    bool moveInHistory(const QKeyEvent &key);
    bool isEmptied(const QLineEdit &edit) const;
    void showAgain(QLineEdit &edit);
    void openMenu(const QPoint &at);
    void followLink();
    void afterLeaving();
    void commitWhole();

    SoField *m_field;
    SoType m_type;
    SbName m_name;
    const EditorKind &m_kind;
    QStringList m_choices;
    EditManager *m_manager;
    HbFieldEditors *m_editor;
    QLabel *m_label;
    QString m_labelText;
    RowState *m_state;
    QList<QLineEdit *> m_edits;
    QHash<const QLineEdit *, QString> m_shown; ///< what refresh() left in the edits
    QString m_source;
};

#endif
