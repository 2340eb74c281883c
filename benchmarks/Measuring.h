// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QSize>

#include <benchmark/benchmark.h>

#include <vector>

/// What the measurements have in common.
namespace measuring {

/// Whether each row runs once on a small picture, only to show that it still works.
inline bool smokeTest()
{
    return qEnvironmentVariableIsSet("ORNEVO_BENCHMARKS_SMOKE");
}

/// Gives a row its sizes in megapixels: range(0) of the benchmark. The time is that of the processor in all
/// threads, so that work that is handed to other threads counts.
inline void atSizes(benchmark::internal::Benchmark *row, const std::vector<int> &sizes)
{
    for (const int size : smokeTest() ? std::vector<int>{1} : sizes)
        row->Arg(size);
    row->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
}

/// The sizes that the loops over pixels are measured at.
inline void megapixels(benchmark::internal::Benchmark *row)
{
    atSizes(row, {4, 12, 24, 64});
}

/// The sizes of the photos that a person works on when each dab and step is measured.
inline void megapixelsInUse(benchmark::internal::Benchmark *row)
{
    atSizes(row, {24, 60});
}

inline int megapixelsOf(const benchmark::State &state)
{
    return static_cast<int>(state.range(0));
}

/// Whether a row ended with an error in this process.
inline bool &anyFailed()
{
    static bool failed = false;
    return failed;
}

/// True when there is no fault. Else the row ends with an error and measures nothing: a wrong answer has no
/// time.
inline bool isRight(benchmark::State &state, const QByteArray &fault)
{
    if (fault.isEmpty())
        return true;
    anyFailed() = true;
    state.SkipWithError(fault.constData());
    return false;
}

/// Measures `work()`, once it has run. Memory that a virtual machine has not used for some seconds has to
/// come from its host, which can take longer than the work.
template <typename Work> void repeat(benchmark::State &state, Work work)
{
    work();
    for (auto _ : state)
        work();
}

/// Adds the number of pixels to the row, which scripts/measure divides by, and the time for each of them.
inline void perPixel(benchmark::State &state, QSize size)
{
    const double pixels = static_cast<double>(size.width()) * size.height();
    state.counters["pixels"] = pixels;
    state.counters["a pixel"] = benchmark::Counter(pixels, benchmark::Counter::kIsIterationInvariantRate |
                                                               benchmark::Counter::kInvert);
}

} // namespace measuring
