// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef ROWSHAPE_H
#define ROWSHAPE_H

#include <QList>

#include <vector>

struct PanelMetrics;
class QBoxLayout;
class QGridLayout;
class QLabel;
class QPushButton;
class QSpacerItem;
class QWidget;

/**
 * Brings an editor of the library into the panel's grid: label, control, buttons.
 *
 * The editor's own layouts stay where they are with other stretches, spacers and sizes; only the components of a value
 * move to a grid, in which they share the width in equal parts, on several lines where one is too narrow.
 */
class RowShape
{
public:
    explicit RowShape(QWidget &editor);

    void apply(const PanelMetrics &metrics);
    void setLabelWidth(int width);
    /// Breaks the components into as few lines as fit a row of this width.
    void fold(int width);
    /// Buttons are quiet until the row is in use.
    void setActive(bool active);

    QWidget *editor() const { return m_editor; }
    QLabel *label() const { return m_label; }
    /// What the Tab key is to reach, in its order.
    const QList<QWidget *> &controls() const { return m_controls; }

private:
    void shapeLine(QBoxLayout &line);
    void shapeTable(QGridLayout &grid);
    void shapeComponents(QBoxLayout &edits);
    void putBehind(QBoxLayout &component, QLabel &unit);
    void placeComponents();
    void collect(const QWidget &widget);
    void sizeControl(QWidget &control, const PanelMetrics &metrics) const;
    void sizeLayouts(const PanelMetrics &metrics);

    QWidget *m_editor;
    QLabel *m_label;
    QList<QWidget *> m_controls;
    QList<QPushButton *> m_buttons;
    QGridLayout *m_grid = nullptr; ///< of the components
    std::vector<QBoxLayout *> m_components;
    QLabel *m_unit = nullptr;
    QSpacerItem *m_unitIndent = nullptr;
    int m_perLine = 0;
    int m_labelWidth = 0;
    int m_space = 0;
    int m_part = 0; ///< the least width of a component
    int m_beside = 0; ///< the width of what is no component
};

#endif
