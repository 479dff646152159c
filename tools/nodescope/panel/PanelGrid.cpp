// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "PanelGrid.h"

#include "RowLink.h"

#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

namespace
{
constexpr int usualLabel = 16; // characters
constexpr int readableLabel = 10; // with what marks it
constexpr int longLabel = 24;

/// Of a line that stands below an editor and belongs to its row.
QList<QWidget *> buttonsBelow(QWidget &editor)
{
    QLayout *const page = editor.parentWidget()->layout();
    QLayoutItem *const below = page->itemAt(page->indexOf(&editor) + 1);
    QList<QWidget *> buttons;
    if (auto *const line = qobject_cast<RowLink *>(below ? below->widget() : nullptr))
        buttons.append(line->findChild<QToolButton *>());
    return buttons;
}
} // namespace

PanelGrid::PanelGrid(QScrollArea &area, std::function<int()> widestLabel)
    : QObject(&area), m_area(area), m_widestLabel(std::move(widestLabel)), m_metrics(area)
{
    area.installEventFilter(this);
}

void PanelGrid::add(QWidget &editor)
{
    RowShape &row = m_rows.emplace_back(editor);
    row.apply(m_metrics);
    editor.installEventFilter(this);
    m_paint.watch(row);
}

void PanelGrid::orderTabs()
{
    QWidget *last = nullptr;
    for (const RowShape &row : m_rows) {
        QList<QWidget *> controls = row.controls();
        controls += buttonsBelow(*row.editor());
        for (QWidget *const control : std::as_const(controls)) {
            if (!(control->focusPolicy() & Qt::TabFocus))
                continue;
            if (last)
                QWidget::setTabOrder(last, control);
            last = control;
        }
    }
}

void PanelGrid::clear()
{
    m_rows.clear();
    m_hovered = nullptr;
}

void PanelGrid::align()
{
    m_labelWidth = std::max({m_labelWidth, usualLabel * m_metrics.character, m_widestLabel()});
    const int width = m_area.width() - m_area.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int part = std::max(width / 3, std::min(longLabel * m_metrics.character, width * 9 / 20));
    const int room = std::min(part, width - m_metrics.mostBeside);
    const int label = std::min(m_labelWidth, std::max(readableLabel * m_metrics.character, room));
    for (RowShape &row : m_rows) {
        row.setLabelWidth(label);
        row.fold(width);
    }
}

void PanelGrid::restyle()
{
    m_metrics = PanelMetrics(m_area);
    m_labelWidth = 0;
    for (RowShape &row : m_rows)
        row.apply(m_metrics);
    align();
}

void PanelGrid::showFocus(const QWidget *focused)
{
    m_focused = focused;
    showActive();
}

void PanelGrid::showActive()
{
    for (RowShape &row : m_rows)
        row.setActive(row.editor() == m_hovered || row.editor()->isAncestorOf(m_focused));
}

bool PanelGrid::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
        if (watched == &m_area)
            break;
        m_hovered = event->type() == QEvent::Enter ? watched : nullptr;
        showActive();
        break;
    case QEvent::Resize:
        if (watched == &m_area)
            align();
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
        if (watched == &m_area)
            restyle();
        break;
    default:
        break;
    }
    return false;
}
