// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef PANELGRID_H
#define PANELGRID_H

#include "PanelMetrics.h"
#include "RowPaint.h"
#include "RowShape.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <vector>

class QScrollArea;
class QWidget;

/**
 * The one grid in which all rows of a panel stand: labels, controls and buttons at the same place in each.
 *
 * It follows the width of the panel and the font and the style of the desktop. The column of the labels keeps its width
 * from one node to the next, and grows for longer names up to a part of the panel.
 */
class PanelGrid : public QObject
{
public:
    /// @p widestLabel tells how wide the widest label of the rows would like to be. The area is the grid's parent.
    PanelGrid(QScrollArea &area, std::function<int()> widestLabel);

    /// Puts an editor below those that were added before.
    void add(QWidget &editor);
    /// To be called after rows were added.
    void align();
    /// Lets Tab go from left to right, row by row; to be called when the rows stand in their window.
    void orderTabs();
    void clear();
    /// The row with the keyboard shows its buttons.
    void showFocus(const QWidget *focused);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void restyle();
    void showActive();

    QScrollArea &m_area;
    std::function<int()> m_widestLabel;
    PanelMetrics m_metrics;
    RowPaint m_paint;
    int m_labelWidth = 0;
    std::vector<RowShape> m_rows;
    QPointer<const QWidget> m_focused;
    const QObject *m_hovered = nullptr; ///< compared only
};

#endif
