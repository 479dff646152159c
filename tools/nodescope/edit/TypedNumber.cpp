// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TypedNumber.h"

#include "FieldCommand.h"
#include "RefusedFrame.h"

#include <HbSlider.h>

#include <QApplication>
#include <QDoubleValidator>
#include <QGridLayout>
#include <QIntValidator>
#include <QKeyEvent>
#include <QSpinBox>
#include <QToolTip>

#include <algorithm>

namespace
{
/// As one computes on paper: in floats 15.6 and 0.1 make 15.700001.
double decimalSum(const QString &number, double step)
{
    constexpr int mostDecimals = 9;
    const auto decimals = [](const QString &text) {
        const auto point = text.indexOf(QLatin1Char('.'));
        return point < 0 || text.contains(QLatin1Char('e')) ? 0 : static_cast<int>(text.size() - point - 1);
    };
    const double sum = number.toDouble() + step;
    const int places = qMax(decimals(number), decimals(QString::number(step)));
    const bool isLong = places > mostDecimals || number.contains(QLatin1Char('e'));
    return isLong ? sum : QString::number(sum, 'f', places).toDouble();
}
} // namespace

/// Lets everything be typed. Accepts what its editor can read; in a cell, what the table's manager can.
class TypedNumber::Validator : public QValidator
{
public:
    explicit Validator(TypedNumber &number) : QValidator(&number), m_number(number) { }

    State validate(QString &text, int &) const override
    {
        const NumberForm::Reading reading = m_number.m_form.read(text);
        const bool isSettled = reading.isReadable() && (m_number.m_place == Place::Cell || reading.text == text);
        return isSettled ? Acceptable : Intermediate;
    }

private:
    const TypedNumber &m_number;
};

TypedNumber::TypedNumber(QLineEdit &edit, const NumberForm &form, Place place)
    : QObject(&edit), m_edit(edit), m_spin(qobject_cast<QSpinBox *>(edit.parentWidget())),
      m_control(m_spin ? static_cast<QWidget &>(*m_spin) : edit), m_form(form), m_place(place),
      m_validator(new Validator(*this)), m_series(FieldCommand::newSeries())
{
    keepValidator();
    m_control.installEventFilter(this);
    if (m_spin)
        edit.installEventFilter(this);
    connect(&edit, &QLineEdit::textChanged, this, &TypedNumber::follow);
}

void TypedNumber::keepValidator()
{
    if (m_edit.validator() != m_validator)
        m_edit.setValidator(m_validator);
    m_form.base = base();
}

/// Of a slider that shows its number in hexadecimal or octal digits.
int TypedNumber::base() const
{
    const auto *const slider = qobject_cast<const HbSlider *>(m_edit.parentWidget());
    const auto prefix = slider ? slider->getText().size() - m_edit.text().size() : 0;
    return prefix == 2 ? 16 : prefix == 1 ? 8 : 10;
}

NumberForm::Reading TypedNumber::read() const
{
    return m_form.read(m_edit.text());
}

bool TypedNumber::isPending() const
{
    return m_edit.isModified() && !m_edit.isReadOnly();
}

bool TypedNumber::isBlank() const
{
    return m_edit.text().trimmed().isEmpty();
}

/// Into the range that a slider's own validator tells.
double TypedNumber::clamped(double value) const
{
    if (const auto *const real = m_edit.findChild<QDoubleValidator *>(QString(), Qt::FindDirectChildrenOnly))
        return std::clamp(value, real->bottom(), std::max(real->bottom(), real->top()));
    const auto *const whole = m_edit.findChild<QIntValidator *>(QString(), Qt::FindDirectChildrenOnly);
    if (whole && whole->bottom() <= whole->top()) // else it accepts nothing
        return std::clamp<double>(value, whole->bottom(), whole->top());
    return value;
}

/// As typed by the person: Qt takes it for set by the program.
void TypedNumber::show(const QString &text)
{
    if (text == m_edit.text())
        return;
    m_edit.setText(text);
    m_edit.setCursorPosition(0);
    m_edit.setModified(true);
    mark({});
}

bool TypedNumber::settle()
{
    if (!isPending())
        return true;
    const NumberForm::Reading reading = read();
    if (!reading.isReadable()) {
        refuse(reading.error);
        return false;
    }
    const double value = m_form.count == 1 ? clamped(reading.value) : reading.value;
    const QString text = value == reading.value ? reading.text : m_form.written(value);
    if (value != reading.value)
        Q_EMIT refused(tr("%1 lies beyond the range; %2 is taken.").arg(reading.text, text));
    show(text);
    return true;
}

void TypedNumber::commit()
{
    if (m_spin)
        m_spin->interpretText();
    else if (m_place == Place::Grid)
        Q_EMIT entered();
    else if (m_place == Place::Field)
        Q_EMIT m_edit.returnPressed();
}

/// While it is typed, what more characters may yet complete is not marked.
void TypedNumber::follow()
{
    const NumberForm::Reading reading = isPending() ? read() : NumberForm::Reading();
    mark(reading.isUnfinished ? QString() : reading.error);
}

void TypedNumber::mark(const QString &why)
{
    if (why == m_why)
        return;
    if (m_why.isEmpty()) {
        m_formerTip = m_control.toolTip();
        m_frame = new RefusedFrame(&m_control);
        m_frame->show();
    }
    m_why = why;
    m_control.setToolTip(why.isEmpty() ? m_formerTip : why);
    if (!why.isEmpty())
        return;
    delete m_frame;
    QToolTip::hideText(); // which tells what was wrong
}

void TypedNumber::refuse(const QString &why)
{
    mark(why);
    Q_EMIT refused(why);
}

bool TypedNumber::press(const QKeyEvent &key)
{
    if (m_edit.isReadOnly())
        return false;
    switch (key.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (isInGrid())
            return moveOn(key.key() == Qt::Key_Up ? -1 : 1);
        return m_place == Place::Cell ? !accept() : step(key);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return !accept();
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return m_place == Place::Cell && !accept();
    case Qt::Key_Escape:
        if (!m_spin || !isPending())
            return false;
        Q_EMIT dropped(); // a spin box would leave its text
        return true;
    default:
        return false;
    }
}

bool TypedNumber::isInGrid() const
{
    return m_edit.parentWidget()->isWindow();
}

/// To the edit above or below.
bool TypedNumber::moveOn(int step)
{
    auto *const grid = qobject_cast<QGridLayout *>(m_edit.parentWidget()->layout());
    const int at = grid ? grid->indexOf(&m_edit) : -1;
    if (at < 0)
        return false;
    int row = 0, column = 0, rowSpan = 0, columnSpan = 0;
    grid->getItemPosition(at, &row, &column, &rowSpan, &columnSpan);
    if (QLayoutItem *const next = grid->itemAtPosition(row + step, column); next && next->widget()) {
        next->widget()->setFocus(Qt::OtherFocusReason);
        if (auto *const edit = qobject_cast<QLineEdit *>(next->widget()))
            edit->selectAll();
    }
    return true;
}

/// Whether the key may go on to the edit.
bool TypedNumber::accept()
{
    if (!isPending())
        return true;
    if (isBlank()) {
        Q_EMIT dropped();
        return false;
    }
    if (!settle())
        return false;
    if (m_place == Place::Grid)
        Q_EMIT entered();
    selectLater();
    return true;
}

/// Once it is committed: what is typed next takes its place.
void TypedNumber::selectLater()
{
    const auto select = [this] {
        if (m_control.hasFocus() && !isPending())
            m_edit.selectAll();
    };
    QMetaObject::invokeMethod(this, select, Qt::QueuedConnection);
}

/// Finer where whole numbers are large for what the field holds.
double TypedNumber::stepWidth() const
{
    constexpr double ofAngle = 0.1;
    constexpr double ofShare = 0.01;
    if (m_form.kind == NumberForm::Kind::Whole)
        return 1;
    const auto *const range = m_edit.findChild<QDoubleValidator *>(QString(), Qt::FindDirectChildrenOnly);
    const bool isShare = m_form.isShare || (range && range->top() - range->bottom() <= 1);
    return isShare ? ofShare : m_form.isAngle ? ofAngle : 1;
}

bool TypedNumber::step(const QKeyEvent &key)
{
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (m_form.count > 1 || (modifiers & ~(Qt::ShiftModifier | Qt::ControlModifier)))
        return false;
    const NumberForm::Reading reading = read();
    if (!reading.isReadable()) {
        refuse(reading.error);
        return true;
    }
    double width = stepWidth();
    if (modifiers & Qt::ShiftModifier)
        width *= 10;
    if (modifiers & Qt::ControlModifier)
        width /= 10;
    if (m_form.kind == NumberForm::Kind::Whole)
        width = std::max(width, 1.0);
    const double change = key.key() == Qt::Key_Up ? width : -width;
    const bool isWhole = m_form.kind == NumberForm::Kind::Whole;
    const double next = isWhole ? reading.value + change : decimalSum(reading.text, change);
    show(m_form.written(clamped(std::clamp(next, m_form.least, m_form.most))));
    selectLater();
    if (isPending())
        Q_EMIT stepped();
    return true;
}

void TypedNumber::leave(const QFocusEvent &event)
{
    const bool isMenu = event.reason() == Qt::PopupFocusReason;
    const QWidget *const popup = QApplication::activePopupWidget();
    if (isMenu && popup && popup->parentWidget() == &m_edit) // its own menu, behind which it goes on
        return;
    m_series = FieldCommand::newSeries();
    if (!isPending() || m_place == Place::Cell)
        return;
    const NumberForm::Reading reading = read();
    const bool isLeft = !isMenu && event.reason() != Qt::ActiveWindowFocusReason;
    if (isBlank())
        m_edit.setModified(false);
    else if (!reading.isReadable() && isLeft)
        refuse(reading.error);
    if (m_spin && !reading.isReadable())
        m_edit.setText(QString::number(m_spin->value())); // it might take a part of the text
    if (reading.isReadable() && settle() && m_place == Place::Grid)
        Q_EMIT entered();
}

bool TypedNumber::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDying = !qobject_cast<QLineEdit *>(watched) && !qobject_cast<QSpinBox *>(watched);
    if (isDying) // when a plain widget is left of it, Qt takes its focus
        return false;
    if (event->type() == QEvent::KeyPress)
        return press(static_cast<QKeyEvent &>(*event));
    if (event->type() == QEvent::FocusOut)
        leave(static_cast<QFocusEvent &>(*event));
    const bool isDoubleClick = event->type() == QEvent::MouseButtonDblClick && m_form.count == 1;
    if (isDoubleClick)
        m_edit.selectAll(); // Qt would leave out the sign and what is before the point
    return isDoubleClick;
}
