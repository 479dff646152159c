// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef WINDOWS_H
#define WINDOWS_H

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

/// One turn of the event loop, up to the pixels: what is out of date is painted at once, where the window
/// system would wait for its next frame.
inline void turn(QWidget &window)
{
    QCoreApplication::processEvents();
    QEvent paint(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &paint);
}

inline void showNow(QWidget &window, const QSize &size)
{
    window.resize(size);
    window.show();
    turn(window);
}

inline void deleteLeftovers()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

#endif
