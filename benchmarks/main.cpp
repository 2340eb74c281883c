// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// Runs the measurements in one process, so that ours stand beside those of OpenCV in one run.

#include "benchmarks/BenchmarkApplication.h"
#include "benchmarks/Measuring.h"

#include <benchmark/benchmark.h>

int main(int argc, char *argv[])
{
    const BenchmarkApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return measuring::anyFailed() ? 1 : 0;
}
