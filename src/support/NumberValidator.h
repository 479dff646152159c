// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef NUMBERVALIDATOR_H
#define NUMBERVALIDATOR_H

#include "NumberText.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QLocale>

/**
 * A validator of numbers in the C locale, on every desktop.
 *
 * Qt's own validators rewrite the text when a person leaves the edit; this one leaves it alone, or, once
 * told to clamp, turns a number beyond the range into the nearest bound.
 */
template <class QtValidator> class NumberValidator : public QtValidator
{
public:
    template <class... Range> explicit NumberValidator(QObject *parent, Range... range) : QtValidator(range..., parent)
    {
        QLocale locale = QLocale::c();
        locale.setNumberOptions(QLocale::RejectGroupSeparator);
        this->setLocale(locale);
    }

    void setClamping(bool clamping) { m_clamping = clamping; }

    QValidator::State validate(QString &text, int &position) const override
    {
        const QValidator::State state = QtValidator::validate(text, position);
        // the text of a bound, cut to 6 digits, may lie just outside
        const bool isBound = m_clamping && (text == textOf(this->bottom()) || text == textOf(this->top()));
        return isBound ? QValidator::Acceptable : state;
    }

    void fixup(QString &text) const override
    {
        bool converted = false;
        const double number = text.toDouble(&converted);
        if (!m_clamping || !converted)
            return;
        if (number > this->top())
            text = textOf(this->top());
        else if (number < this->bottom())
            text = textOf(this->bottom());
    }

private:
    static QString textOf(int number) { return QString::number(number); }
    static QString textOf(double number) { return NumberText::fromFloat(static_cast<float>(number)); }

    bool m_clamping = false;
};

using IntValidator = NumberValidator<QIntValidator>;
using RealValidator = NumberValidator<QDoubleValidator>;

#endif
