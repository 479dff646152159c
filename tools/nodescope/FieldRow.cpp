// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "FieldRow.h"

#include "EditManager.h"
#include "EditorTable.h"
#include "FieldText.h"
#include "TableManager.h"
#include "UndoKeys.h"

#include <HbFieldEditors.h>
#include <HbRangeComponent.h>
#include <HbTablePopupLineEdit.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>

#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/fields/SoMField.h>

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
        return kind.create(field, nameOf(field).getString(), EditorTable::rangeFor(kind, field), manager, parent);
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
}

FieldRow::FieldRow(SoField &field, const Made &made, QObject *parent)
    : QObject(parent), m_field(&field), m_type(field.getTypeId()), m_name(nameOf(field)),
      m_kind(EditorTable::kindFor(field)), m_choices(EditorTable::choices(field)), m_manager(made.manager),
      m_editor(made.editor), m_label(labelOf(*m_editor)), m_labelText(m_label->text()),
      m_edits(m_editor->findChildren<QLineEdit *>())
{
    m_manager->setParent(this);
    adoptControls();
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
    m_editor->setToolTip(QStringLiteral("%1 (%2)").arg(name, QString::fromLatin1(m_type.getName().getString())));
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
    EditorTable::resetRange(*m_editor, EditorTable::rangeFor(m_kind, field));
    refresh();
}

void FieldRow::finish()
{
    if (m_manager->isHeld()) { // the slider lets go, else the mouse would drag on in the next node's field
        QMouseEvent release(QEvent::MouseButtonRelease, {}, {}, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_editor->findChild<QSlider *>(), &release);
    }
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
    for (QLineEdit *const edit : std::as_const(m_edits))
        edit->setModified(false); // not all are set anew
    updateMark();
}

void FieldRow::follow()
{
    if (!isBusy())
        refresh();
}

bool FieldRow::isBusy() const
{
    return m_manager->isHeld() || std::any_of(m_edits.begin(), m_edits.end(), [](const QLineEdit *edit) {
               const bool isCommitted = qobject_cast<const HbTablePopupLineEdit *>(edit); // with every keystroke
               return edit->isModified() && edit->isVisible() && !isCommitted;
           });
}

void FieldRow::updateMark()
{
    const QString source = FieldText::source(*m_field);
    const QString label = source.isEmpty() ? m_labelText : m_labelText + connectedMark;
    if (label == m_label->text() && source == m_source)
        return;
    m_source = source;
    m_label->setText(label);
    m_label->setToolTip(FieldText::obstacle(*m_field));
    m_editor->setAccessibleDescription(m_label->toolTip());
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
        + 2 * (m_label->margin() + m_label->frameWidth());
}

void FieldRow::setLabelWidth(int width)
{
    m_label->setFixedWidth(width);
}

bool FieldRow::eventFilter(QObject *watched, QEvent *event)
{
    const auto &edit = static_cast<const QLineEdit &>(*watched);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        return handleKey(edit, static_cast<QKeyEvent &>(*event));
    case QEvent::FocusOut: {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            QMetaObject::invokeMethod(this, &FieldRow::afterLeaving, Qt::QueuedConnection);
        return false;
    }
    default:
        return false;
    }
}

bool FieldRow::handleKey(const QLineEdit &edit, QKeyEvent &event)
{
    if (leaveToApplication(event))
        return true;
    const bool isAsked = event.type() == QEvent::ShortcutOverride;
    const bool isInPopup = edit.window() != m_editor->window();
    if (event.key() == Qt::Key_Escape && isInPopup && !isAsked)
        refresh(); // and the popup closes
    if (event.key() != Qt::Key_Escape || !edit.isModified() || isInPopup)
        return false;
    event.accept();
    if (!isAsked)
        refresh();
    return true;
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
