// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>

#include <benchmark/benchmark.h>

/// What the measurements have in common.
namespace measuring {

/// The sizes that everything is measured at, in megapixels: range(0) of the benchmark. The time is that of
/// the processor in all threads, so that work that is handed to other threads counts.
inline void megapixels(benchmark::internal::Benchmark *row)
{
    for (const int size : {4, 12, 24, 64})
        row->Arg(size);
    row->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
}

inline int megapixelsOf(const benchmark::State &state)
{
    return static_cast<int>(state.range(0));
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
