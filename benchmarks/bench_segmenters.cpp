// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// How the segmenters that the program itself does not call grow with the picture.

#include "benchmarks/BenchmarkPictures.h"
#include "benchmarks/Measuring.h"
#include "segmentation/FrWaveSegment.h"
#include "segmentation/OvDoFeathering.h"
#include "tests/reference/ImageReferences.h"
#include "tests/support/Differences.h"

#include <QBitmap>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace {

constexpr int threshold = 40;
constexpr int steps = 3;

QByteArray faultOfWaves()
{
    QImage picture = benchmarkpictures::smallPicture();
    QList<QList<int>> regions;
    QList<QList<int>> expected;
    FrWaveSegment(&picture, regions, threshold, nullptr, nullptr);
    reference::waveSegment(picture, expected, threshold);
    return regions == expected ? "" : "other regions";
}

void waves(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfWaves()))
        return;
    QImage picture = benchmarkpictures::photoMosaic(measuring::megapixelsOf(state));
    measuring::repeat(state, [&] {
        QList<QList<int>> regions;
        FrWaveSegment(&picture, regions, threshold, nullptr, nullptr);
        benchmark::DoNotOptimize(regions);
    });
    measuring::perPixel(state, picture.size());
}
BENCHMARK(waves)->Apply(measuring::megapixels);

QBitmap ellipseIn(const QRect &frame)
{
    QBitmap mask(frame.size());
    mask.fill(Qt::color0);
    QPainter painter(&mask);
    painter.setBrush(Qt::color1);
    painter.drawEllipse(frame.adjusted(50, 50, -50, -50));
    return mask;
}

QByteArray faultOfFeathering()
{
    QImage picture = benchmarkpictures::smallPicture().convertToFormat(QImage::Format_ARGB32);
    QImage expected = picture.copy();
    const QBitmap mask = ellipseIn(picture.rect());
    OvDoFeathering(&picture, mask, steps);
    reference::feather(expected, mask, steps);
    return testsupport::firstDifference(picture, expected);
}

void feathering(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfFeathering()))
        return;
    QImage picture =
        benchmarkpictures::photoMosaic(measuring::megapixelsOf(state)).convertToFormat(QImage::Format_ARGB32);
    const QBitmap mask = ellipseIn(picture.rect());
    measuring::repeat(state, [&] { OvDoFeathering(&picture, mask, steps); });
    measuring::perPixel(state, picture.size());
}
BENCHMARK(feathering)->Apply(measuring::megapixels);

} // namespace
