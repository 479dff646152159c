// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef SOAK_H
#define SOAK_H

#include <QString>

#include <functional>

/**
 * Plays the same round again and again in this process, and prints after each how much memory is resident.
 *
 * The exit code is 1 when a round tells of a fault, or when the last one leaves more than 2 % more than the second.
 */
int soak(int rounds, const std::function<QString()> &playRound);

#endif
