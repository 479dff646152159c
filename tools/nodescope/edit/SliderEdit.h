// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SLIDEREDIT_H
#define SLIDEREDIT_H

#include "OwnEdit.h"
#include "SliderPlaces.h"

#include <QObject>
#include <QPointer>

#include <functional>

class HbSlider;
class QSlider;
class QUndoStack;

/// The value that a slider sets.
class SliderTarget
{
public:
    virtual ~SliderTarget() = default;

    /// The number in the field; nothing where there is none.
    virtual std::optional<double> slidNumber(const HbSlider &slider) const = 0;
    /// The span for that number; nothing where the slider has a range of its own.
    virtual std::optional<SliderSpan> slidSpan(double number) const = 0;
    /// Keeps the value. False where it may not be edited now; says why.
    virtual bool beginSlide(const HbSlider &slider) = 0;
    /// Writes what the slider shows.
    virtual void slide(const HbSlider &slider) = 0;
    /// Whether value and flags are those that were kept or written last.
    virtual bool isAsSlid() const = 0;
    /// Where the value is still the written one, gives the field the one that was kept, and leaves its flags.
    virtual void dropSlid() = 0;
    /// Gives the field the value that was kept, to the bit, and the slider the text.
    virtual void putBack(HbSlider &slider) = 0;
    /// Makes one step of the way from the kept value to the present one. The slider may be dead.
    virtual void endSlide(int series) = 0;
    /// Shows the value.
    virtual void refresh() = 0;
};

/**
 * Lets the handle of a slider edit a value in undo steps.
 *
 * One step per drag; the steps by key, wheel or a click in the groove make one together while the slider has the
 * focus. Escape ends a drag and gives the value back. A handle that ends where it began leaves every bit of the value.
 *
 * The span is that of the value, but stays while the slider itself changes the value.
 */
class SliderEdit : public QObject
{
    Q_OBJECT

public:
    /// Takes over the handle. The slider may die first.
    SliderEdit(HbSlider &slider, SliderTarget &target, QUndoStack *stack);
    /// A drag that ends with its slider counts like any other.
    ~SliderEdit() override;

    const HbSlider *slider() const;
    /// Whether a mouse button holds the handle or the groove.
    bool isHeld() const { return m_hold.has_value(); }
    /// Ends a drag.
    void letGo();
    /// Ends a drag in silence.
    void abandon();

    /// Another value is shown from now on.
    void startAnew();
    /// Steps to come make no one step with those before.
    void beginSeries();
    /// Has the slider show the field's value, by @p refresh, in the span that fits.
    void show(const std::function<void()> &refresh);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fit();
    void adapt();
    bool begin();
    void hold();
    void moved();
    void take();
    void step();
    void finish(int series);
    void cancel();
    void stackMoved();
    void slide();
    void putBack();
    void releaseMouse();
    void end(int series);
    bool cancelByKey(QEvent &event);

    QPointer<HbSlider> m_slider;
    QPointer<QSlider> m_handle;
    const QObject *const m_watched; ///< the handle, compared only
    SliderPlaces m_places;
    SliderTarget &m_target;
    std::optional<double> m_written; ///< by the slider, and still the value as far as is known
    std::optional<double> m_writtenBefore; ///< when the handle was taken
    std::optional<OwnEdit> m_hold;
    int m_start = 0; ///< where the handle was when it was taken
    std::optional<int> m_grip; ///< where the mouse took it, and has not made it jump
    bool m_isMouseMoved = false;
    bool m_isBack = false; ///< the mouse is there again: a number between two pixels is not lost
    int m_series;
    bool m_isAction = false; ///< the user makes the handle's next move
    bool m_isShowing = false; ///< no move is the user's
};

#endif
