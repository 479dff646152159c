// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef COMPARISON_H
#define COMPARISON_H

#include <functional>
#include <string>
#include <vector>

#include <time.h>

/// One line of the table that the benchmarks print.
struct Comparison {
    std::string name; ///< what is measured
    std::string against; ///< what it is measured against
    double aim = 0; ///< the largest ratio aimed at; 0 for none
    bool isMemory = false; ///< its sides return bytes a row
    double minimumTime = 0; ///< measured in each repetition, in seconds; 0 for what the command line says
};

/// The two things compared. Each does its work once and returns the seconds, or bytes, that count.
struct Sides {
    std::function<double()> measured;
    std::function<double()> baseline;
};

/// Adds a comparison. @p prepare runs anew for each repetition and is not timed; what its sides need
/// lives as long as they do.
void compare(const Comparison &comparison, const std::function<Sides()> &prepare);

/// The processor time that this program has used up; what else the machine does hardly counts.
inline double processorSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

template <class Work> double secondsOf(const Work &work)
{
    const double start = processorSeconds();
    work();
    return processorSeconds() - start;
}

double median(std::vector<double> numbers);

#endif
