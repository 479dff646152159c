// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Comparison.h"

#include <benchmark/benchmark.h>

#include <algorithm>

namespace
{
/// Both sides take turns, so that what else the machine does hits both alike.
void run(benchmark::State &state, const Comparison &comparison, const Sides &sides)
{
    std::vector<double> measured;
    std::vector<double> baseline;
    for ([[maybe_unused]] auto _ : state) {
        measured.push_back(sides.measured());
        baseline.push_back(sides.baseline());
        state.SetIterationTime(measured.back() + baseline.back());
    }
    state.SetLabel(comparison.against);
    state.counters["measured"] = median(measured);
    state.counters["baseline"] = median(baseline);
    state.counters["aim"] = comparison.aim;
    state.counters["isMemory"] = comparison.isMemory;
}
} // namespace

void compare(const Comparison &comparison, const std::function<Sides()> &prepare)
{
    auto *const registered = benchmark::RegisterBenchmark(
        comparison.name.c_str(), [=](benchmark::State &state) { run(state, comparison, prepare()); });
    registered->UseManualTime();
    if (comparison.minimumTime > 0)
        registered->MinTime(comparison.minimumTime);
}

double median(std::vector<double> numbers)
{
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::nth_element(numbers.begin(), middle, numbers.end());
    return *middle;
}
