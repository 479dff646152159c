// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef BUTTONROW_H
#define BUTTONROW_H

#include <HbSFieldWidget.h>

#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>

#include <Inventor/fields/SoField.h>

#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

/**
 * A field editor of buttons: each makes a new value out of the field's present one.
 *
 * To a tool it is an editor like any other. It commits through its command manager, so a click can be undone.
 */
template <class Field> class ButtonRow : public HbSFieldWidget
{
public:
    using Value = std::decay_t<decltype(std::declval<Field>().getValue())>;
    using Change = std::function<Value(const Value &)>;
    using IsShown = std::function<bool(const Value &)>;

    ButtonRow(const QString &label, HbFieldEditorCommandManager *manager, QWidget *parent)
        : HbSFieldWidget(label.toUtf8().constData(), manager, parent, "ButtonRow", {})
    {
        m_defaultButton->hide(); // another editor of the same field has them
        m_ignoreButton->hide();
        m_editLayout->addStretch();
    }

    /// A button that changes the value; with @p isShown it looks pressed while that is true of the value.
    void addButton(const QString &text, const QString &explanation, Change change, IsShown isShown = {})
    {
        auto *const button = new QToolButton(m_editionFrame);
        button->setText(text);
        button->setToolTip(explanation);
        button->setAccessibleName(explanation);
        button->setCheckable(bool(isShown));
        m_editLayout->insertWidget(int(m_buttons.size()), button);
        m_buttons.push_back({button, std::move(isShown)});
        connect(button, &QToolButton::clicked, this, [this, change = std::move(change)] { commit(change); });
    }

    void refresh() override
    {
        const Field *const edited = field();
        for (const Button &button : m_buttons)
            if (edited && button.isShown)
                press(button.button, button.isShown(edited->getValue()));
        HbSFieldWidget::refresh();
    }

    void applyChanges() override
    {
        if (Field *const edited = field(); edited && m_change)
            edited->setValue(m_change(edited->getValue()));
    }

    bool edited() override { return bool(m_change); }

private:
    struct Button {
        QToolButton *button;
        IsShown isShown;
    };

    Field *field() const
    {
        SoField *const any = editedField(); // null once it has died
        return any && any->isOfType(Field::getClassTypeId()) ? static_cast<Field *>(any) : nullptr;
    }

    static void press(QToolButton *button, bool pressed)
    {
        button->setChecked(pressed);
        QFont font = button->font();
        font.setBold(pressed); // with dark colours a pressed button looks much like the others
        button->setFont(font);
    }

    void commit(const Change &change)
    {
        const QPointer<QObject> alive(this); // whoever hears of the edit may delete its editor
        m_change = change;
        setCommandValue();
        if (!alive)
            return;
        m_change = nullptr;
        refresh();
    }

    std::vector<Button> m_buttons;
    Change m_change; ///< while it is being committed
};

#endif
