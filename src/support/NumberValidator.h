// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef NUMBERVALIDATOR_H
#define NUMBERVALIDATOR_H

#include "NumberText.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>
#include <QLocale>

#include <type_traits>
#include <utility>

/**
 * A validator of the numbers typed in a line edit, in the C locale on every desktop.
 *
 * Qt's own validators rewrite the text when a person leaves the edit; this one leaves it alone, or, once
 * told to clamp, turns a number that was typed beyond the range into the nearest bound.
 */
template <class QtValidator> class NumberValidator : public QtValidator
{
public:
    template <class... Range> explicit NumberValidator(QLineEdit *edit, Range... range) : QtValidator(range..., edit)
    {
        QLocale locale = QLocale::c();
        locale.setNumberOptions(QLocale::RejectGroupSeparator);
        this->setLocale(locale);
        // QLineEdit takes a clamped text for one set by the program: it is still an edit to be committed
        QObject::connect(edit, &QLineEdit::textChanged, this, [this, edit] {
            if (std::exchange(m_clampedEdit, false))
                edit->setModified(true);
        });
    }

    void setClamping(bool clamping) { m_clamping = clamping; }

    QValidator::State validate(QString &text, int &position) const override
    {
        const QValidator::State state = QtValidator::validate(text, position);
        if (!m_clamping || state == QValidator::Acceptable)
            return state;
        // the text of a bound, cut to 6 digits, may lie just outside
        if (text == textOf(this->bottom()) || text == textOf(this->top()))
            return QValidator::Acceptable;
        // a number beyond the range must be typed before it can be clamped
        return beginsNumber(text, position) ? QValidator::Intermediate : state;
    }

    void fixup(QString &text) const override
    {
        bool converted = false;
        const double number = text.toDouble(&converted);
        const bool beyond = number > this->top() || number < this->bottom();
        if (!m_clamping || !converted || !beyond || !static_cast<QLineEdit *>(this->parent())->isModified())
            return;
        text = textOf(number > this->top() ? this->top() : this->bottom());
        m_clampedEdit = true;
    }

private:
    /// Whether the text is a number, or begins one, whatever the range.
    bool beginsNumber(QString text, int position) const
    {
        QtValidator whole;
        whole.setLocale(this->locale());
        if constexpr (std::is_same_v<QtValidator, QDoubleValidator>)
            whole.setDecimals(this->decimals());
        return whole.validate(text, position) != QValidator::Invalid;
    }

    static QString textOf(int number) { return QString::number(number); }
    static QString textOf(double number) { return NumberText::fromFloat(static_cast<float>(number)); }

    bool m_clamping = false;
    mutable bool m_clampedEdit = false; ///< between fixup() and the change of the text that follows
};

using IntValidator = NumberValidator<QIntValidator>;
using RealValidator = NumberValidator<QDoubleValidator>;

#endif
