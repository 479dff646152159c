// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef CELLEDITORS_H
#define CELLEDITORS_H

#include <HbMFieldTable.h>

#include <QObject>
#include <QPointer>

/// The editors that are open in the cells of a table. They leave undo keys to the application.
class CellEditors : public QObject
{
    Q_OBJECT

public:
    explicit CellEditors(HbMFieldTable &table);

    /// Whether the handle of a slider is held.
    bool isDragging() const;
    /// Lets go of a slider, commits what is being typed, and closes.
    void finish();
    /// Closes without a commit. False if a text was being typed.
    bool drop();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Some were opened or closed.
    void changed();
    void sliderPressed();
    void sliderDragged();
    /// A step by key, wheel or groove. @p unwritten is what the slider then shows only: its box is off.
    void sliderStepped(const QString &unwritten);

private:
    void adopt();
    void expectStep();
    void sliderMoved();

    QPointer<HbMFieldTable> m_table;
    QObject *m_viewport; ///< of the table, which is not asked while it dies
    bool m_isStep = false; ///< the user makes the slider's next move
};

#endif
