// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// How the segmenters that the program itself does not call grow with the picture: 1 to 64 megapixels.

#include "benchmarks/BenchmarkPictures.h"
#include "imaging/EdgeMap.h"
#include "segmentation/FrWatershedMany.h"
#include "segmentation/FrWaveSegment.h"
#include "segmentation/OvDoFeathering.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace {

void sizes(benchmark::internal::Benchmark *benchmark)
{
    for (const int megapixels : {1, 4, 16, 64})
        benchmark->Arg(megapixels);
    benchmark->Unit(benchmark::kMillisecond);
}

void countPixels(benchmark::State &state, const QImage &picture)
{
    state.SetItemsProcessed(state.iterations() * std::int64_t{picture.width()} * picture.height());
}

void manyRegions(benchmark::State &state)
{
    QImage picture = benchmarkpictures::photoMosaic(int(state.range(0)));
    std::vector<unsigned char> edges(std::size_t(picture.width()) * std::size_t(picture.height()));
    computeEdgeMap(picture, edges.data());
    std::vector<std::vector<int>> seeds;
    for (const QList<int> &stroke : benchmarkpictures::strokes(picture.size(), 8))
        seeds.emplace_back(stroke.begin(), stroke.end());
    for (auto _ : state) {
        QList<QList<int>> regions(1);
        FrWatershedMany(&picture, seeds, regions, edges.data(), nullptr);
        benchmark::DoNotOptimize(regions);
    }
    countPixels(state, picture);
}
BENCHMARK(manyRegions)->Apply(sizes);

void waves(benchmark::State &state)
{
    QImage picture = benchmarkpictures::photoMosaic(int(state.range(0)));
    for (auto _ : state) {
        QList<QList<int>> regions;
        FrWaveSegment(&picture, regions, 40, nullptr, nullptr);
        benchmark::DoNotOptimize(regions);
    }
    countPixels(state, picture);
}
BENCHMARK(waves)->Apply(sizes);

/// Threshold 0 makes a list of every pixel: as much as there can be.
void wavesOfOnePixel(benchmark::State &state)
{
    QImage picture = benchmarkpictures::photoMosaic(int(state.range(0)));
    for (auto _ : state) {
        QList<QList<int>> regions;
        FrWaveSegment(&picture, regions, 0, nullptr, nullptr);
        benchmark::DoNotOptimize(regions);
    }
    countPixels(state, picture);
}
BENCHMARK(wavesOfOnePixel)->Apply(sizes);

void feathering(benchmark::State &state)
{
    QImage picture =
        benchmarkpictures::photoMosaic(int(state.range(0))).convertToFormat(QImage::Format_ARGB32);
    QBitmap mask(picture.size());
    mask.fill(Qt::color0);
    QPainter painter(&mask);
    painter.setBrush(Qt::color1);
    painter.drawEllipse(picture.rect().adjusted(50, 50, -50, -50));
    painter.end();
    for (auto _ : state)
        OvDoFeathering(&picture, mask, 3);
    countPixels(state, picture);
}
BENCHMARK(feathering)->Apply(sizes);

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
