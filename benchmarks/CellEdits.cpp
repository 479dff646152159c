// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "CellEdits.h"

#include "Windows.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSlider>

#include <stdexcept>

namespace
{
template <class Control> Control *openEditor(QTableView &table)
{
    deleteLeftovers(); // the editor before
    table.edit(table.currentIndex());
    auto *const control = table.viewport()->findChild<Control *>();
    if (!control)
        throw std::logic_error("the cell has no such editor");
    return control;
}
} // namespace

void CellEdits::activate(QTableView &table)
{
    table.window()->activateWindow();
    turn(*table.window());
    if (!table.window()->isActiveWindow())
        throw std::logic_error("the window is not active");
    table.setFocus();
    turn(*table.window());
}

void CellEdits::type(QTableView &table)
{
    static int entered = 0;
    auto *const edit = openEditor<QLineEdit>(table);
    edit->selectAll();
    edit->insert(QString::number(++entered) + QStringLiteral(".25"));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(edit, &enter);
    turn(*table.window());
}

CellEdits::Drag::Drag(QTableView &table)
    : m_table(table), m_slider(openEditor<QSlider>(table)), m_pace((m_slider->maximum() - m_slider->minimum()) / 50)
{
    turn(*table.window());
    m_slider->setSliderDown(true);
}

void CellEdits::Drag::step()
{
    const int next = m_slider->sliderPosition() + m_pace;
    if (next > m_slider->maximum() || next < m_slider->minimum())
        m_pace = -m_pace;
    m_slider->setSliderPosition(m_slider->sliderPosition() + m_pace);
    turn(*m_table.window());
}

void CellEdits::Drag::end()
{
    m_slider->setSliderDown(false);
    turn(*m_table.window());
}
