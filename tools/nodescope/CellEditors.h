// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CELLEDITORS_H
#define CELLEDITORS_H

#include <HbMFieldTable.h>

#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

class HbSlider;
class QUndoStack;
class SliderEdit;
class SliderTarget;

/// The editors that are open in the cells of a table. They leave undo keys to the application.
class CellEditors : public QObject
{
    Q_OBJECT

public:
    /// The sliders among them set @p target.
    CellEditors(HbMFieldTable &table, SliderTarget &target, QUndoStack *stack);
    ~CellEditors() override;

    /// Ends the drag of a slider.
    void letGo();
    /// Ends a drag, commits what is being typed, and closes.
    void finish();
    /// Closes without a commit. False if a text was being typed.
    bool drop();
    /// Steps to come make no one step with those before.
    void beginSeries();
    /// Fits the sliders to their values.
    void refresh();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Some were opened or closed.
    void changed();
    /// One is there, all but shown.
    void made(QWidget *editor);

private:
    void adopt();
    void adoptSlider(HbSlider &slider);
    static bool passToSlider(QObject *edit, QEvent &event);

    QPointer<HbMFieldTable> m_table;
    QObject *m_viewport; ///< of the table, which is not asked while it dies
    SliderTarget &m_target;
    QPointer<QUndoStack> m_stack;
    std::vector<std::unique_ptr<SliderEdit>> m_sliders;
};

#endif
