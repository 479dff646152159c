// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef VIEWROOM_H
#define VIEWROOM_H

#include <QHash>
#include <QObject>

class QDockWidget;
class QMainWindow;

/**
 * Shares the width of a window between its centre and the docks beside it.
 *
 * The centre has at least half of it whenever the window is shown or its size changes; the docks share what is left as
 * they shared before. Docks that a person has drawn keep their width instead, but for a small window.
 */
class ViewRoom : public QObject
{
public:
    using Widths = QHash<QString, int>; ///< by the docks' object names

    ViewRoom(QMainWindow &window, Widths usual);

    /// Takes the drawn widths from the last time.
    void restore();
    /// Keeps the drawn widths for the next time.
    void save() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void make();
    Widths widths() const;

    QMainWindow &m_window;
    Widths m_usual;
    Widths m_drawn;
    Widths m_pressed; ///< when the mouse went down
};

#endif
