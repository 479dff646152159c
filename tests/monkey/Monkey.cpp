// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Monkey.h"

#include "Soak.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <numeric>
#include <optional>

namespace
{
using Steps = QVector<int>;

void print(const QString &text)
{
    std::fprintf(stdout, "%s\n", text.toLocal8Bit().constData());
    std::fflush(stdout);
}

QString listed(const Steps &steps)
{
    QStringList texts;
    for (const int step : steps)
        texts << QString::number(step);
    return texts.join(QLatin1Char(','));
}

/// In this process.
QString playRun(const MonkeyPlan &plan, quint32 seed, const Steps &steps, bool tell)
{
    const std::unique_ptr<MonkeyWorld> world = plan.makeWorld(seed);
    for (const int number : steps) {
        const quint32 seeds[] = {seed, static_cast<quint32>(number)};
        QRandomGenerator random(seeds);
        const QString done = world->step(random);
        if (tell)
            print(QStringLiteral("%1: %2").arg(number).arg(done));
        if (done.isEmpty())
            return {};
        if (const QString fault = world->fault(); !fault.isEmpty())
            return QStringLiteral("after step %1, %2: %3").arg(number).arg(done, fault);
    }
    return world->lastFault();
}

int play(const MonkeyPlan &plan, quint32 first, quint32 count, const Steps &steps, bool tell)
{
    for (quint32 seed = first; seed < first + count; ++seed) {
        print(QStringLiteral("seed %1").arg(seed));
        const QString fault = playRun(plan, seed, steps, tell);
        if (fault.isEmpty())
            continue;
        print(QStringLiteral("fault ") + fault);
        return 1;
    }
    return 0;
}

QString playFixedRuns(const MonkeyPlan &plan, const Steps &steps)
{
    for (quint32 seed = 0; seed < static_cast<quint32>(plan.runs); ++seed)
        if (const QString fault = playRun(plan, seed, steps, false); !fault.isEmpty())
            return QStringLiteral("seed %1 fails %2").arg(seed).arg(fault);
    return {};
}

struct Outcome {
    quint32 seed; ///< the last that was begun
    QString fault; ///< empty: none
};

Outcome playApart(quint32 first, quint32 count, const Steps &steps)
{
    constexpr int patience = 10 * 60 * 1000; // a step that never ends is a fault, too
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--play"), QString::number(count), QStringLiteral("--seed"), QString::number(first),
                   QStringLiteral("--only"), listed(steps)});
    const bool ended = process.waitForFinished(patience);
    if (!ended) {
        process.kill();
        process.waitForFinished();
    }
    const QString output = QString::fromLocal8Bit(process.readAll());
    Outcome outcome{output.section(QStringLiteral("\nseed "), -1).section(QLatin1Char('\n'), 0, 0).toUInt(), {}};
    if (output.count(QStringLiteral("seed ")) < 2)
        outcome.seed = first;
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        outcome.fault = output.section(QStringLiteral("seed %1\n").arg(outcome.seed), -1).right(6000);
    return outcome;
}

/// Leaves out ever smaller parts as long as the rest still fails.
Steps shrunk(quint32 seed, Steps steps)
{
    for (int size = std::max(1, static_cast<int>(steps.size()) / 2);; size = std::max(1, size / 2)) {
        bool shorter = false;
        for (int at = 0; at < steps.size();) {
            const Steps rest = steps.mid(0, at) + steps.mid(at + size);
            if (!rest.isEmpty() && !playApart(seed, 1, rest).fault.isEmpty()) {
                steps = rest;
                shorter = true;
            } else {
                at += size;
            }
        }
        if (size == 1 && !shorter)
            return steps;
    }
}

int report(const Outcome &outcome, const Steps &steps)
{
    print(QStringLiteral("seed %1 fails: %2\nshrinking ...").arg(outcome.seed).arg(outcome.fault));
    const Steps few = shrunk(outcome.seed, steps);
    const QString again = playApart(outcome.seed, 1, few).fault;
    print(QStringLiteral("%1\n%2 --seed %3 --only %4")
              .arg(again, QCoreApplication::applicationFilePath())
              .arg(outcome.seed)
              .arg(listed(few)));
    return 1;
}
} // namespace

int runMonkey(const QStringList &arguments, const MonkeyPlan &plan)
{
    QCommandLineParser parser;
    parser.addOptions({{QStringLiteral("seed"), {}, QStringLiteral("number")},
                       {QStringLiteral("only"), {}, QStringLiteral("steps")},
                       {QStringLiteral("play"), {}, QStringLiteral("runs")},
                       {QStringLiteral("minutes"), {}, QStringLiteral("number")},
                       {QStringLiteral("soak"), {}, QStringLiteral("rounds")}});
    parser.process(arguments);
    Steps steps(plan.steps);
    std::iota(steps.begin(), steps.end(), 0);
    if (parser.isSet(QStringLiteral("only"))) {
        steps.clear();
        const QStringList texts = parser.value(QStringLiteral("only")).split(QLatin1Char(','));
        for (const QString &text : texts)
            steps << text.toInt();
    }
    quint32 seed = parser.value(QStringLiteral("seed")).toUInt();
    if (parser.isSet(QStringLiteral("play")))
        return play(plan, seed, parser.value(QStringLiteral("play")).toUInt(), steps, false);
    if (parser.isSet(QStringLiteral("seed")))
        return play(plan, seed, 1, steps, true);

    if (parser.isSet(QStringLiteral("soak")))
        return soak(parser.value(QStringLiteral("soak")).toInt(), [&] { return playFixedRuns(plan, steps); });

    constexpr quint32 batch = 50; // runs of one process
    const qint64 limit = parser.value(QStringLiteral("minutes")).toLongLong() * 60 * 1000;
    if (limit > 0)
        seed = QRandomGenerator::global()->generate() / 2; // leaves room to count on
    const quint32 first = seed;
    print(QStringLiteral("from seed %1").arg(first));
    QElapsedTimer time;
    time.start();
    while (limit > 0 ? time.elapsed() < limit : seed < first + static_cast<quint32>(plan.runs)) {
        const Outcome outcome = playApart(seed, batch, steps);
        if (!outcome.fault.isEmpty())
            return report(outcome, steps);
        seed += batch;
    }
    print(QStringLiteral("seeds %1 to %2, %3 steps each, %4 in all: no fault")
              .arg(first)
              .arg(seed - 1)
              .arg(plan.steps)
              .arg(qint64(seed - first) * plan.steps));
    return 0;
}
