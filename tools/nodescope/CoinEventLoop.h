// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef COINEVENTLOOP_H
#define COINEVENTLOOP_H

#include <QObject>
#include <QTimer>

/**
 * Runs Coin's sensors from Qt's event loop, only when one is due: an idle program sleeps.
 *
 * Coin's clock ("realTime") ticks by itself twelve times a second; here it runs only while something
 * listens to it, and then smoothly.
 */
class CoinEventLoop : public QObject
{
    Q_OBJECT

public:
    explicit CoinEventLoop(QObject *parent = nullptr);
    ~CoinEventLoop() override;

    /// Starts or stops Coin's clock; to be called after a scene, or a connection in it, has changed.
    static void updateClock();
    static bool isClockRunning() { return s_clockRuns; }

private:
    static void queueChanged(void *self);
    void schedule();
    void runTimers();
    void runDelayed();

    inline static bool s_clockRuns = true; // as Coin starts
    QTimer m_timerQueue;
    QTimer m_delayQueue;
};

#endif
