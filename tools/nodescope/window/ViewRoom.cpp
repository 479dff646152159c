// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "ViewRoom.h"

#include <QDockWidget>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QSettings>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <numeric>

namespace
{
constexpr int smallWindow = 900; // pixels
const QLatin1String widthsKey("dockWidths");

/// The widest dock of a side: docks above one another are equally wide, those in tabs are hidden but for one.
QDockWidget *dockAt(const QMainWindow &window, Qt::DockWidgetArea area)
{
    QDockWidget *widest = nullptr;
    const auto docks = window.findChildren<QDockWidget *>();
    for (QDockWidget *const dock : docks) {
        const bool isThere = window.dockWidgetArea(dock) == area && dock->isVisible() && !dock->isFloating();
        if (isThere && (!widest || dock->width() > widest->width()))
            widest = dock;
    }
    return widest;
}

QList<QDockWidget *> docksOf(const QMainWindow &window)
{
    QList<QDockWidget *> docks;
    for (const Qt::DockWidgetArea area : {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea}) {
        if (QDockWidget *const dock = dockAt(window, area))
            docks.append(dock);
    }
    return docks;
}
} // namespace

ViewRoom::ViewRoom(QMainWindow &window, Widths usual) : QObject(&window), m_window(window), m_usual(std::move(usual))
{
    window.installEventFilter(this);
}

void ViewRoom::restore()
{
    const QVariantMap kept = QSettings().value(widthsKey).toMap();
    for (auto dock = kept.begin(); dock != kept.end(); ++dock)
        m_drawn.insert(dock.key(), dock.value().toInt());
}

void ViewRoom::save() const
{
    QVariantMap kept;
    for (auto dock = m_drawn.begin(); dock != m_drawn.end(); ++dock)
        kept.insert(dock.key(), dock.value());
    QSettings().setValue(widthsKey, kept);
}

void ViewRoom::make()
{
    const QList<QDockWidget *> docks = docksOf(m_window);
    const Widths &wanted = m_drawn.isEmpty() ? m_usual : m_drawn;
    QList<int> widths;
    for (const QDockWidget *const dock : docks)
        widths.append(wanted.value(dock->objectName(), dock->width()));
    const int taken = std::accumulate(widths.begin(), widths.end(), 0);
    const int separators = static_cast<int>(docks.size())
        * m_window.style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, &m_window);
    const int room = m_window.width() / 2 - separators;
    const bool isShared = m_drawn.isEmpty() || m_window.width() <= smallWindow;
    if (isShared && taken > room)
        std::transform(widths.begin(), widths.end(), widths.begin(), [=](int width) { return width * room / taken; });
    m_window.resizeDocks(docks, widths, Qt::Horizontal);
    m_window.layout()->activate(); // before anything is painted
}

ViewRoom::Widths ViewRoom::widths() const
{
    Widths widths;
    const QList<QDockWidget *> docks = docksOf(m_window);
    for (const QDockWidget *const dock : docks)
        widths.insert(dock->objectName(), dock->width());
    return widths;
}

/// The mouse on the line between dock and centre is the window's.
bool ViewRoom::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Show:
        make(); // the window has been laid out before
        break;
    case QEvent::MouseButtonPress:
        m_pressed = widths();
        break;
    case QEvent::MouseButtonRelease:
        QTimer::singleShot(0, this, [this] { // the window follows the mouse a little later
            if (widths() != m_pressed)
                m_drawn = widths();
        });
        break;
    default:
        break;
    }
    return false;
}
