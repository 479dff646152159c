// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Soak.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QPixmapCache>

#include <cstdio>
#include <malloc.h>
#include <unistd.h>

namespace
{
double residentMegabytes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    malloc_trim(0);
    QFile pages(QStringLiteral("/proc/self/statm"));
    if (!pages.open(QIODevice::ReadOnly))
        return 0;
    return pages.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}
} // namespace

int soak(int rounds, const std::function<QString()> &playRound)
{
    constexpr int warmUp = 2; // caches fill
    constexpr double tolerance = 1.02;
    QPixmapCache::setCacheLimit(0); // it keeps the names of pixmaps that are gone, until a timer of half a minute
    double warm = 0;
    double last = 0;
    for (int round = 1; round <= rounds; ++round) {
        if (const QString fault = playRound(); !fault.isEmpty()) {
            std::printf("round %d: %s\n", round, fault.toLocal8Bit().constData());
            return 1;
        }
        last = residentMegabytes();
        if (round == warmUp)
            warm = last;
        std::printf("round %d: %.2f MB\n", round, last);
        std::fflush(stdout);
    }
    std::printf("after round %d %.2f MB, after round %d %.2f MB\n", warmUp, warm, rounds, last);
    return rounds > warmUp && warm > 0 && last <= warm * tolerance ? 0 : 1;
}
