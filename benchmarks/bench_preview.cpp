// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The steps between the flooding and the preview on the screen, one by one.

#include "benchmarks/BenchmarkPictures.h"
#include "benchmarks/Measuring.h"
#include "cutout/BackgroundLayer.h"
#include "cutout/CutOut.h"
#include "cutout/FourChannelBlur.h"
#include "cutout/IndexPicture.h"

#include <benchmark/benchmark.h>

#include <QPixmap>

#include <cmath>
#include <map>

namespace {

constexpr QRgb black = 0xFF000000U;
constexpr QRgb white = 0xFFFFFFFFU;

/// What the steps are done on: a photo and the indices of a large object with a rough outline, row by row.
struct Subject
{
    explicit Subject(int megapixels)
        : photo(QPixmap::fromImage(benchmarkpictures::photoMosaic(megapixels))),
          board(16, 16, QImage::Format_RGB32)
    {
        board.fill(Qt::lightGray);
        const double scale = std::min(photo.width(), photo.height());
        for (int y = 0; y < photo.height(); ++y)
            for (int x = 0; x < photo.width(); ++x) {
                const double dx = (x - photo.width() / 2) / scale;
                const double dy = (y - photo.height() / 2) / scale;
                const double angle = std::atan2(dy, dx);
                const double outline = 0.33 + 0.05 * std::sin(7 * angle) + 0.01 * std::sin(61 * angle);
                if (dx * dx + dy * dy < outline * outline)
                    indices.append(y * photo.width() + x);
            }
    }

    QPixmap photo;
    QImage board;
    QList<int> indices;
};

const Subject &subjectOf(const benchmark::State &state)
{
    static std::map<std::int64_t, Subject> subjects;
    return subjects.try_emplace(state.range(0), static_cast<int>(state.range(0))).first->second;
}

template <typename Step> void oneStep(benchmark::State &state, Step step)
{
    const Subject &subject = subjectOf(state);
    measuring::repeat(state, [&] { benchmark::DoNotOptimize(step(subject).width()); });
    measuring::perPixel(state, subject.photo.size());
}

void indicesToMask(benchmark::State &state)
{
    oneStep(state,
            [](const Subject &s) { return cutout::paintIndices(s.photo.size(), s.indices, black, white); });
}

void roomForMask(benchmark::State &state)
{
    const Subject &subject = subjectOf(state);
    const QImage mask = cutout::paintIndices(subject.photo.size(), subject.indices, black, white);
    oneStep(state, [&](const Subject &) { return cutout::blurDestination(mask, 5); });
}

void maskToCutOut(benchmark::State &state)
{
    const Subject &subject = subjectOf(state);
    const QImage mask = cutout::paintIndices(subject.photo.size(), subject.indices, black, white);
    oneStep(state, [&](const Subject &s) { return cutout::cutOut(s.photo.toImage(), mask); });
}

void cutOutToShow(benchmark::State &state)
{
    const Subject &subject = subjectOf(state);
    const QImage mask = cutout::paintIndices(subject.photo.size(), subject.indices, black, white);
    const QImage object = cutout::cutOut(subject.photo.toImage(), mask);
    oneStep(state, [&](const Subject &) { return cutout::premultiplied(object); });
}

void background(benchmark::State &state)
{
    oneStep(state, [&](const Subject &s) {
        return cutout::backgroundLayer(s.photo.size(), static_cast<QRgb>(state.range(1)), s.board, {});
    });
}

constexpr std::int64_t transparent = 0;
constexpr std::int64_t halfBlue = 0x800000FF;

BENCHMARK(indicesToMask)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(roomForMask)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(maskToCutOut)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(cutOutToShow)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(background)->ArgsProduct({{4}, {transparent, halfBlue, white}})->Unit(benchmark::kMillisecond);

} // namespace
