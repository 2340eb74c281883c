// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// How the segmenters that the program itself does not call grow with the picture.

#include "benchmarks/BenchmarkPictures.h"
#include "benchmarks/Measuring.h"
#include "segmentation/FrWaveSegment.h"
#include "segmentation/OvDoFeathering.h"

#include <QBitmap>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace {

void waves(benchmark::State &state)
{
    QImage picture = benchmarkpictures::photoMosaic(measuring::megapixelsOf(state));
    measuring::repeat(state, [&] {
        QList<QList<int>> regions;
        FrWaveSegment(&picture, regions, 40, nullptr, nullptr);
        benchmark::DoNotOptimize(regions);
    });
    measuring::perPixel(state, picture.size());
}
BENCHMARK(waves)->Apply(measuring::megapixels);

/// Threshold 0 makes a list of every pixel: as much as there can be.
void wavesOfOnePixel(benchmark::State &state)
{
    QImage picture = benchmarkpictures::photoMosaic(measuring::megapixelsOf(state));
    measuring::repeat(state, [&] {
        QList<QList<int>> regions;
        FrWaveSegment(&picture, regions, 0, nullptr, nullptr);
        benchmark::DoNotOptimize(regions);
    });
    measuring::perPixel(state, picture.size());
}
BENCHMARK(wavesOfOnePixel)->Apply(measuring::megapixels);

void feathering(benchmark::State &state)
{
    QImage picture =
        benchmarkpictures::photoMosaic(measuring::megapixelsOf(state)).convertToFormat(QImage::Format_ARGB32);
    QBitmap mask(picture.size());
    mask.fill(Qt::color0);
    QPainter painter(&mask);
    painter.setBrush(Qt::color1);
    painter.drawEllipse(picture.rect().adjusted(50, 50, -50, -50));
    painter.end();
    measuring::repeat(state, [&] { OvDoFeathering(&picture, mask, 3); });
    measuring::perPixel(state, picture.size());
}
BENCHMARK(feathering)->Apply(measuring::megapixels);

} // namespace
