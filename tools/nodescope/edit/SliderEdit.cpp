// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "SliderEdit.h"

#include "FieldCommand.h"

#include <HbSlider.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSlider>
#include <QUndoStack>

#include <utility>

SliderEdit::SliderEdit(HbSlider &slider, SliderTarget &target, QUndoStack *stack)
    : m_slider(&slider), m_handle(slider.findChild<QSlider *>()), m_watched(m_handle), m_places(slider), m_target(target),
      m_series(FieldCommand::newSeries())
{
    m_handle->disconnect(m_slider); // its own answers to the handle
    m_handle->installEventFilter(this);
    connect(m_handle, &QSlider::actionTriggered, this,
            [this] { m_isAction = m_handle->sliderPosition() != m_handle->value(); });
    connect(m_handle, &QSlider::valueChanged, this, &SliderEdit::moved);
    connect(m_handle, &QSlider::rangeChanged, this, &SliderEdit::adapt);
    connect(m_handle, &QSlider::sliderPressed, this, &SliderEdit::hold);
    connect(m_handle, &QSlider::sliderReleased, this, [this] { finish(FieldCommand::noSeries); });
    connect(m_handle, &QObject::destroyed, this, [this] {
        m_handle.clear(); // of a widget not yet known to be gone
        finish(FieldCommand::noSeries);
    });
    connect(stack, &QUndoStack::indexChanged, this, &SliderEdit::stackMoved);
}

SliderEdit::~SliderEdit()
{
    finish(FieldCommand::noSeries);
}

const HbSlider *SliderEdit::slider() const
{
    return m_slider;
}

void SliderEdit::startAnew()
{
    abandon();
    m_written.reset();
    beginSeries();
}

void SliderEdit::beginSeries()
{
    m_series = FieldCommand::newSeries();
}

void SliderEdit::show(const std::function<void()> &refresh)
{
    if (!m_handle)
        return;
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    fit();
    refresh();
    if (m_handle)
        m_places.place();
}

void SliderEdit::fit()
{
    const std::optional<double> number = m_target.slidNumber(*m_slider);
    if (!number || isHeld() || (m_written && *m_written == *number))
        return;
    m_written.reset();
    std::optional<SliderSpan> span = m_target.slidSpan(*number);
    if (!span && m_places.ownSpan())
        span = SliderRanges::widened(*m_places.ownSpan(), *number);
    if (span)
        m_places.setSpan(*span);
}

/// The slider shows another number, of its own accord.
void SliderEdit::adapt()
{
    if (!m_isShowing && !isHeld())
        show([] {});
}

/// Keeps the value from before a move.
bool SliderEdit::begin()
{
    if (!m_target.beginSlide(*m_slider))
        return false;
    m_start = m_handle->value();
    m_writtenBefore = m_written;
    return true;
}

void SliderEdit::hold()
{
    if (!isHeld() && begin()) {
        m_hold.emplace();
        m_grip.reset();
        m_isBack = m_isMouseMoved = false;
        qApp->installEventFilter(this); // wherever the keyboard is
    }
}

/// By the user, or by the slider to show a number.
void SliderEdit::moved()
{
    const bool isAction = std::exchange(m_isAction, false);
    if (m_isShowing)
        return;
    if (!m_isMouseMoved)
        m_grip.reset();
    if (isHeld() && (m_isBack || m_handle->value() == m_start)) {
        putBack();
    } else if (isHeld()) {
        take();
        if (m_slider->isChecked() || !m_handle->isSliderDown())
            slide();
    } else if (!isAction && m_places.isOwnMove(m_handle->value())) {
        adapt();
    } else {
        step();
    }
}

void SliderEdit::take()
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    m_places.take(m_handle->value());
}

void SliderEdit::slide()
{
    m_target.slide(*m_slider);
    m_written = m_target.slidNumber(*m_slider);
}

void SliderEdit::putBack()
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    m_target.putBack(*m_slider);
    m_places.place();
    m_written = m_writtenBefore;
}

void SliderEdit::step()
{
    const OwnEdit own;
    if (!begin()) {
        show([] {});
        return;
    }
    take();
    slide();
    end(m_series);
}

void SliderEdit::end(int series)
{
    m_target.endSlide(series);
    if (m_handle)
        m_target.refresh();
}

void SliderEdit::letGo()
{
    if (!isHeld())
        return;
    if (m_handle->isSliderDown())
        releaseMouse(); // which finishes
    finish(m_series);
}

void SliderEdit::finish(int series)
{
    if (!isHeld())
        return;
    const OwnEdit own;
    qApp->removeEventFilter(this);
    if (m_handle && m_handle->value() == m_start)
        putBack();
    else if (m_handle && !m_slider->isChecked())
        slide();
    m_hold.reset();
    end(series);
}

void SliderEdit::abandon()
{
    if (!isHeld())
        return;
    qApp->removeEventFilter(this);
    m_hold.reset();
    releaseMouse();
}

void SliderEdit::cancel()
{
    const OwnEdit own;
    abandon();
    putBack();
}

/// What is undone in the middle of a drag makes the drag start from there.
void SliderEdit::stackMoved()
{
    if (!isHeld() || !m_handle || m_target.isAsSlid())
        return;
    m_target.dropSlid();
    if (!begin())
        abandon();
}

/// Else the mouse would drag on.
void SliderEdit::releaseMouse()
{
    if (!m_handle)
        return;
    const QPointer<QSlider> handle = m_handle;
    QMouseEvent release(QEvent::MouseButtonRelease, {}, {}, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(handle, &release);
    if (handle)
        handle->setSliderDown(false);
}

bool SliderEdit::cancelByKey(QEvent &event)
{
    const bool isKey = event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride;
    if (!isKey || static_cast<QKeyEvent &>(event).key() != Qt::Key_Escape)
        return false;
    event.accept();
    if (event.type() == QEvent::KeyPress)
        cancel();
    return true;
}

bool SliderEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (isHeld() && cancelByKey(*event))
        return true;
    const bool isHandle = watched == m_watched && qobject_cast<QSlider *>(watched);
    if (!isHandle) // or one that dies: when a plain widget is left of it, Qt takes its focus
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        hold(); // before the handle jumps to a click
        m_grip = static_cast<QMouseEvent *>(event)->pos().x();
        m_isMouseMoved = false;
        return !isHeld();
    case QEvent::MouseMove:
        m_isBack = m_grip == static_cast<QMouseEvent *>(event)->pos().x();
        m_isMouseMoved = true;
        break;
    case QEvent::MouseButtonRelease:
        if (!m_handle->isSliderDown())
            letGo();
        break;
    case QEvent::FocusOut:
        if (!m_handle->isSliderDown())
            letGo();
        beginSeries();
        break;
    default:
        break;
    }
    return false;
}
