// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldRow.h"

#include "EditManager.h"
#include "EditorTable.h"
#include "FieldClipboard.h"
#include "FieldText.h"
#include "ImagePreview.h"
#include "NodesInFields.h"
#include "RowMenu.h"
#include "RowState.h"
#include "TableManager.h"
#include "UndoKeys.h"

#include <HbFieldEditors.h>

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoMFInt32.h>
#include <Inventor/fields/SoMFName.h>
#include <Inventor/fields/SoMFString.h>
#include <Inventor/fields/SoMField.h>
#include <Inventor/fields/SoSFName.h>
#include <Inventor/fields/SoSFString.h>

#include <algorithm>

namespace
{
const QString connectedMark = QStringLiteral(" \u2190"); // an arrow to the left: the value comes in

SbName nameOf(const SoField &field)
{
    SbName name;
    field.getContainer()->getFieldName(&field, name);
    return name;
}

/// An editor of a plug-in's own class may have none.
QLabel *labelOf(HbFieldEditors &editor)
{
    auto *const label = editor.findChild<QLabel *>(QStringLiteral("m_label"));
    if (label)
        return label;
    auto *const unseen = new QLabel(&editor);
    unseen->hide();
    return unseen;
}

std::unique_ptr<EditManager> newManager(const SoField &field, QUndoStack *stack)
{
    if (field.isOfType(SoMField::getClassTypeId()))
        return std::make_unique<TableManager>(stack);
    return std::make_unique<EditManager>(stack);
}

FieldRow::Made makeByType(SoField &field, QUndoStack *stack, QWidget *parent)
{
    return FieldRow::make(field, stack, [&](HbFieldEditorCommandManager *manager) {
        const EditorKind &kind = EditorTable::kindFor(field);
        return kind.create(field, nameOf(field).getString(), manager, parent);
    });
}
} // namespace

FieldRow::Made FieldRow::make(const SoField &field, QUndoStack *stack,
                              const HbGUIManagement::FieldEditorFactory &create)
{
    auto manager = newManager(field, stack);
    HbFieldEditors *const editor = create(manager.get());
    return {editor ? manager.release() : nullptr, editor};
}

FieldRow::FieldRow(SoField &field, QUndoStack *stack, QWidget *parent)
    : FieldRow(field, makeByType(field, stack, parent), parent)
{
    m_manager->fitSliders();
}

FieldRow::FieldRow(SoField &field, const Made &made, QObject *parent)
    : QObject(parent), m_field(&field), m_type(field.getTypeId()), m_name(nameOf(field)),
      m_kind(EditorTable::kindFor(field)), m_choices(EditorTable::choices(field)), m_manager(made.manager),
      m_editor(made.editor), m_label(labelOf(*m_editor)), m_labelText(m_label->text()),
      m_state(new RowState(*m_editor, *m_label)), m_edits(m_editor->findChildren<QLineEdit *>())
{
    m_state->setParent(this);
    connect(m_state, &RowState::linkClicked, this, &FieldRow::followLink);
    m_editor->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_editor, &QWidget::customContextMenuRequested, this, &FieldRow::openMenu);
    m_manager->setParent(this);
    adoptControls();
    ImagePreview::watchIn(*m_editor);
    nameControls();
    connect(m_manager, &EditManager::message, this, &FieldRow::message);
    m_manager->setEditor(m_editor);
    m_manager->setField(m_field);
    refresh();
}

void FieldRow::adoptControls()
{
    if (const auto *const access = m_editor->findChild<QSpinBox *>(QStringLiteral("m_accessBox")))
        m_edits.removeAll(access->findChild<QLineEdit *>()); // it edits nothing
    for (QLineEdit *const edit : std::as_const(m_edits)) {
        edit->installEventFilter(this);
        connect(edit, &QObject::destroyed, this, [this, edit] { m_edits.removeAll(edit); });
    }
    const auto spins = m_editor->findChildren<QSpinBox *>();
    for (QSpinBox *const spin : spins)
        spin->setKeyboardTracking(spin->objectName()
                                  == QLatin1String("m_accessBox")); // one step for a number, not for each of its digits
}

void FieldRow::nameControls()
{
    const QString name = FieldText::qualifiedName(*m_field);
    const auto controls = m_editor->findChildren<QWidget *>();
    for (QWidget *const control : controls) {
        const QString role = control->accessibleName();
        if (!role.isEmpty() || control->focusPolicy() != Qt::NoFocus)
            control->setAccessibleName(role.isEmpty() ? name : QStringLiteral("%1, %2").arg(name, role));
    }
    m_editor->setAccessibleName(name);
    QString explanation = QStringLiteral("%1 (%2)").arg(name, QString::fromLatin1(m_type.getName().getString()));
    const bool holdsIndices = m_type == SoMFInt32::getClassTypeId() && name.endsWith(QLatin1String("Index"));
    if (holdsIndices)
        explanation += QLatin1Char('\n') + tr("Indices count from 0, rows from 1.");
    m_editor->setToolTip(explanation);
}

QWidget *FieldRow::widget() const
{
    return m_editor;
}

bool FieldRow::fits(const SoField &field) const
{
    return field.getTypeId() == m_type && nameOf(field) == m_name && &EditorTable::kindFor(field) == &m_kind
        && EditorTable::choices(field) == m_choices;
}

void FieldRow::setField(SoField &field)
{
    m_field = &field;
    m_manager->setField(m_field);
    refresh();
}

void FieldRow::finish()
{
    m_manager->letGo();
    m_manager->finishTyping();
    for (QLineEdit *const edit : std::as_const(m_edits)) {
        if (edit->isModified() && edit->hasAcceptableInput())
            Q_EMIT edit->editingFinished();
    }
    m_manager->finish();
    commitWhole();
}

/// For editors whose edits do not commit one by one: a rotation is left as a whole.
void FieldRow::commitWhole()
{
    const auto isModified = [](const QLineEdit *edit) { return edit->isModified(); };
    if (std::none_of(m_edits.begin(), m_edits.end(), isModified))
        return; // Qt would paint the editor again
    QFocusEvent leaving(QEvent::FocusOut);
    QCoreApplication::sendEvent(m_editor, &leaving);
}

void FieldRow::release()
{
    m_field = nullptr;
    m_manager->setField(nullptr);
}

void FieldRow::refresh()
{
    if (!m_field)
        return;
    m_manager->refresh();
    for (QLineEdit *const edit : std::as_const(m_edits)) {
        edit->setModified(false); // not all are set anew
        m_shown.insert(edit, edit->text());
    }
    updateMark();
}

void FieldRow::follow()
{
    if (!isBusy())
        refresh();
    else if (m_field)
        updateMark();
}

bool FieldRow::isBusy() const
{
    return m_manager->isHeld() || std::any_of(m_edits.begin(), m_edits.end(), [](const QLineEdit *edit) {
               return edit->isModified() && edit->isVisible();
           });
}

void FieldRow::updateMark()
{
    m_state->show(*m_field);
    const QString source = FieldText::source(*m_field);
    const QString label = source.isEmpty() ? m_labelText : m_labelText + connectedMark;
    if (label == m_label->text() && source == m_source)
        return;
    m_source = source;
    m_label->setText(label);
}

void FieldRow::setFocused(bool focused)
{
    if (focused && m_field)
        updateMark(); // of a lost connection Coin tells nobody
    QFont font = m_label->font();
    if (font.bold() == focused)
        return;
    font.setBold(focused);
    m_label->setFont(font);
}

/// Room for the mark and for bold letters, so that neither moves the controls.
int FieldRow::labelWidth() const
{
    QFont font = m_label->font();
    font.setBold(true);
    return QFontMetrics(font).horizontalAdvance(m_labelText + connectedMark)
        + 2 * (m_label->margin() + m_label->frameWidth()) + m_label->contentsMargins().left();
}

bool FieldRow::eventFilter(QObject *watched, QEvent *event)
{
    auto &edit = static_cast<QLineEdit &>(*watched);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        return handleKey(edit, static_cast<QKeyEvent &>(*event));
    case QEvent::FocusOut: {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (isEmptied(edit))
            showAgain(edit);
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            QMetaObject::invokeMethod(this, &FieldRow::afterLeaving, Qt::QueuedConnection);
        return false;
    }
    default:
        return false;
    }
}

bool FieldRow::handleKey(QLineEdit &edit, QKeyEvent &event)
{
    if (leaveToApplication(event))
        return true;
    const bool isAsked = event.type() == QEvent::ShortcutOverride;
    const bool isInPopup = edit.window() != m_editor->window();
    if (event.key() == Qt::Key_Escape && isInPopup && !isAsked)
        refresh(); // and the popup closes
    if (isInPopup && !isAsked && moveInHistory(event))
        return true;
    const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (isReturn && !isAsked && isEmptied(edit)) {
        showAgain(edit);
        edit.selectAll();
        return true;
    }
    if (event.key() != Qt::Key_Escape || !edit.isModified() || isInPopup)
        return false;
    event.accept();
    if (!isAsked)
        refresh();
    return true;
}

/// The window's shortcuts do not reach into a popup.
bool FieldRow::moveInHistory(const QKeyEvent &key)
{
    const bool isUndo = key.matches(QKeySequence::Undo);
    if (!isUndo && !key.matches(QKeySequence::Redo))
        return false;
    const QLatin1String name(isUndo ? "undo" : "redo");
    if (auto *const action = m_editor->window()->findChild<QAction *>(name))
        action->trigger();
    return true;
}

/// Whether the text of a number was deleted: no text is none.
bool FieldRow::isEmptied(const QLineEdit &edit) const
{
    static SoType (*const texts[])()
        = {SoSFString::getClassTypeId, SoSFName::getClassTypeId, SoMFString::getClassTypeId, SoMFName::getClassTypeId};
    const bool isText = std::any_of(std::begin(texts), std::end(texts), [this](auto type) { return m_type == type(); });
    return !isText && m_field && edit.text().trimmed().isEmpty() && edit.isModified();
}

void FieldRow::showAgain(QLineEdit &edit)
{
    edit.setText(m_shown.value(&edit));
    edit.setModified(false);
}

void FieldRow::openMenu(const QPoint &at)
{
    if (m_field)
        (new RowMenu(*this))->popup(m_editor->mapToGlobal(at)); // deletes itself
}

void FieldRow::followLink()
{
    const std::vector<SoNode *> nodes = m_field ? nodesAt(*m_field) : std::vector<SoNode *>();
    if (nodes.size() == 1)
        Q_EMIT nodeWanted(nodes.front());
    else if (!nodes.empty())
        openMenu(m_editor->mapFromGlobal(QCursor::pos()));
}

void FieldRow::copyValue()
{
    finish();
    if (m_field)
        FieldClipboard::copy(*m_field);
}

void FieldRow::pasteValue()
{
    finish();
    QString problem;
    const std::shared_ptr<SoField> value = m_field ? FieldClipboard::valueFor(*m_field, &problem) : nullptr;
    if (value)
        m_manager->setValue(*value);
    else if (!problem.isEmpty())
        Q_EMIT message(problem);
}

void FieldRow::setToDefault()
{
    finish();
    m_manager->fieldSetDefaultValue();
}

void FieldRow::setIgnored(bool ignored)
{
    m_manager->fieldSetIgnored(ignored);
}

bool FieldRow::isChanged() const
{
    return m_state->isChanged();
}

bool FieldRow::isLocked() const
{
    return m_state->isLocked();
}

/// Nothing stays in an edit that was refused, or that the field has left behind while it was typed.
void FieldRow::afterLeaving()
{
    const bool isEntered
        = std::any_of(m_edits.begin(), m_edits.end(), [](const QLineEdit *e) { return e->hasFocus(); });
    if (isEntered || m_manager->isHeld())
        return;
    commitWhole();
    refresh();
}
