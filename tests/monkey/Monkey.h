// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef MONKEY_H
#define MONKEY_H

#include <QRandomGenerator>
#include <QStringList>

#include <functional>
#include <memory>

/**
 * What a monkey plays with.
 *
 * A run follows from its number alone, and each of its steps from that and its own number, so that a run is played again
 * exactly, also with some of its steps left out.
 */
class MonkeyWorld
{
public:
    virtual ~MonkeyWorld() = default;

    /// Does something and tells what. Empty: it can go on no further.
    virtual QString step(QRandomGenerator &random) = 0;
    /// What is wrong now; empty if nothing is.
    virtual QString fault() = 0;
    /// What is wrong after the last step; may change everything.
    virtual QString lastFault() { return {}; }
};

struct MonkeyPlan {
    int runs; ///< of a run without arguments
    int steps; ///< of each run
    std::function<std::unique_ptr<MonkeyWorld>(quint32 seed)> makeWorld;
};

/**
 * Plays runs in processes of their own, so that a crash is a fault like another. One that fails is shrunk to its
 * shortest steps, which are printed with the command that plays them again; the exit code is 1 then.
 *
 *     monkey                     the fixed runs
 *     monkey --minutes 120       other runs for that long; the first seed is printed
 *     monkey --soak 10           the fixed runs ten times in one process, which must not grow
 *     monkey --seed 17           one run, told step by step
 *     monkey --seed 17 --only 3,8,21
 */
int runMonkey(const QStringList &arguments, const MonkeyPlan &plan);

#endif
