// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef COMPARISON_H
#define COMPARISON_H

#include <chrono>
#include <functional>
#include <string>
#include <vector>

/// One line of the table that the benchmarks print.
struct Comparison {
    std::string name; ///< what is measured
    std::string against; ///< what it is measured against
    double aim = 0; ///< the largest ratio aimed at; 0 for none
};

/// The two things compared. Each does its work once and returns the seconds that count.
struct Sides {
    std::function<double()> measured;
    std::function<double()> baseline;
};

/// Adds a comparison. @p prepare runs anew for each repetition and is not timed; what its sides need
/// lives as long as they do.
void compare(const Comparison &comparison, const std::function<Sides()> &prepare);

template <class Work> double secondsOf(const Work &work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> numbers);

#endif
