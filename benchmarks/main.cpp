// SPDX-FileCopyrightText: 2026 The HarborAPI authors
// SPDX-License-Identifier: BSD-3-Clause

#include "Benchmarks.h"
#include "TableReporter.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <Inventor/SoDB.h>

#include <cstdio>
#include <vector>

namespace
{
/// What the command line says later wins.
std::vector<char *> withDefaults(int argc, char **argv)
{
    static char repetitions[] = "--benchmark_repetitions=9";
    static char minimumTime[] = "--benchmark_min_time=0.2";
    std::vector<char *> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, {repetitions, minimumTime});
    return arguments;
}

/// The offscreen platform complains about every window that is shown, and Qt about each table that has no command
/// manager.
void printMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.contains(QLatin1String("propagateSizeHints")) && !text.startsWith(QLatin1String("QObject::connect:")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}
} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(printMessage);
    const QApplication application(argc, argv);
    SoDB::init();

    std::vector<char *> arguments = withDefaults(argc, argv);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());

    addEditorBenchmarks();
    addRegistryBenchmarks();
    addTableBenchmarks();
    addCellBenchmarks();
#ifdef HARBOR_BENCHMARK_TOOL
    addPanelBenchmarks();
    addTablePanelBenchmarks();
    addSceneBenchmarks(count > 1 ? QString::fromLocal8Bit(arguments[1]) : QString());
#endif
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
