// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "TableReporter.h"

#include "Comparison.h"

#include <QString>

#include <Inventor/SoDB.h>

#include <algorithm>
#include <array>
#include <iostream>

namespace
{
using Cells = std::array<QString, 7>;

void print(std::ostream &out, const Cells &cells)
{
    constexpr std::array<int, 7> widths = {46, 11, 36, 11, 8, 16, 12};
    QString line;
    for (std::size_t i = 0; i < cells.size(); ++i)
        line += cells[i].leftJustified(widths[i]);
    out << line.trimmed().toStdString() << std::endl;
}

QString quantity(double amount, bool isMemory)
{
    if (isMemory)
        return QStringLiteral("%1 B").arg(amount, 0, 'f', 1);
    return amount < 1e-3 ? QStringLiteral("%1 us").arg(amount * 1e6, 0, 'f', 1)
                         : QStringLiteral("%1 ms").arg(amount * 1e3, 0, 'f', 2);
}

QString number(double ratio)
{
    return ratio < 0.01 ? QString::number(ratio, 'g', 2) : QString::number(ratio, 'f', ratio < 0.1 ? 4 : 2);
}

QString verdict(double ratio, double aim)
{
    if (aim <= 0)
        return QStringLiteral("none");
    return QStringLiteral("%1 %2").arg(number(aim), ratio <= aim ? QStringLiteral("met") : QStringLiteral("NOT MET"));
}
} // namespace

bool TableReporter::ReportContext(const Context &context)
{
    std::ostream &out = GetOutputStream();
    out << "Qt " << qVersion() << ", " << SoDB::getVersion() << ", " << context.cpu_info.num_cpus << " cores\n";
#ifndef NDEBUG
    out << "This build is not optimised: its ratios mean little.\n";
#endif
    out << '\n';
    print(out,
          {QStringLiteral("measured"), QStringLiteral("median"), QStringLiteral("against"), QStringLiteral("median"),
           QStringLiteral("ratio"), QStringLiteral("least, most"), QStringLiteral("aim (repetitions)")});
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run> &runs)
{
    std::vector<double> measured;
    std::vector<double> baseline;
    std::vector<double> ratios;
    for (const Run &run : runs) {
        if (run.run_type != Run::RT_Iteration)
            continue;
        measured.push_back(run.counters.at("measured"));
        baseline.push_back(run.counters.at("baseline"));
        ratios.push_back(measured.back() / baseline.back());
    }
    if (ratios.empty())
        return;
    const Run &first = runs.front();
    const double ratio = median(ratios);
    const bool isMemory = first.counters.at("isMemory") > 0;
    const auto [least, most] = std::minmax_element(ratios.begin(), ratios.end());
    print(GetOutputStream(),
          {QString::fromStdString(first.run_name.function_name), quantity(median(measured), isMemory),
           QString::fromStdString(first.report_label), quantity(median(baseline), isMemory), number(ratio),
           number(*least) + QStringLiteral(", ") + number(*most),
           QStringLiteral("%1 (%2)").arg(verdict(ratio, first.counters.at("aim"))).arg(ratios.size())});
}
