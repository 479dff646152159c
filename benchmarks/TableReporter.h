// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#ifndef TABLEREPORTER_H
#define TABLEREPORTER_H

#include <benchmark/benchmark.h>

/// Prints one line per comparison: medians over its repetitions, their ratio, and whether that meets the aim.
class TableReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
};

#endif
