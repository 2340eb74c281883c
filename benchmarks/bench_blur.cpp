// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The smoothing of the preview's mask, beside OpenCV's Gaussian of the same size on four channels.

#include "benchmarks/BenchmarkPictures.h"
#include "imaging/FourChannelBlur.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <random>

#ifdef ORNEVO_HAVE_OPENCV
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#endif

namespace {

/// A mask as a flooding leaves it: one large object with a rough outline.
QImage objectMask(int megapixels)
{
    const QSize size = benchmarkpictures::photoMosaic(megapixels).size();
    QImage mask(size, QImage::Format_RGB32);
    const double scale = std::min(size.width(), size.height());
    for (int y = 0; y < size.height(); ++y) {
        auto *pixels = reinterpret_cast<QRgb *>(mask.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const double dx = (x - size.width() / 2) / scale;
            const double dy = (y - size.height() / 2) / scale;
            const double angle = std::atan2(dy, dx);
            const double outline = 0.33 + 0.05 * std::sin(7 * angle) + 0.01 * std::sin(61 * angle);
            pixels[x] = dx * dx + dy * dy < outline * outline ? 0xFF000000U : 0xFFFFFFFFU;
        }
    }
    return mask;
}

QImage randomBytes(int megapixels)
{
    QImage picture(benchmarkpictures::photoMosaic(megapixels).size(), QImage::Format_RGB32);
    std::mt19937 random(3);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            reinterpret_cast<QRgb *>(picture.scanLine(y))[x] = random();
    return picture;
}

enum Kind { Mask, Photo, Random };

QImage pictureOf(const benchmark::State &state)
{
    const auto megapixels = static_cast<int>(state.range(0));
    switch (state.range(1)) {
    case Mask:
        return objectMask(megapixels);
    case Photo:
        return benchmarkpictures::photoMosaic(megapixels);
    default:
        return randomBytes(megapixels);
    }
}

void perPixel(benchmark::State &state, const QImage &picture)
{
    const double pixels = static_cast<double>(picture.width()) * picture.height();
    state.counters["a pixel"] = benchmark::Counter(pixels, benchmark::Counter::kIsIterationInvariantRate |
                                                               benchmark::Counter::kInvert);
}

void blur(benchmark::State &state)
{
    const QImage picture = pictureOf(state);
    const auto size = static_cast<int>(state.range(2));
    QImage smooth = picture.copy();
    for (auto _ : state)
        blurFourChannels(picture, smooth, size, size / 5.0, {});
    perPixel(state, picture);
}

#ifdef ORNEVO_HAVE_OPENCV

void blurOfOpenCv(benchmark::State &state)
{
    cv::setNumThreads(1);
    QImage picture = pictureOf(state);
    const auto size = static_cast<int>(state.range(2));
    const cv::Mat source(picture.height(), picture.width(), CV_8UC4, picture.bits(),
                         static_cast<std::size_t>(picture.bytesPerLine()));
    cv::Mat smooth = source.clone();
    for (auto _ : state)
        cv::GaussianBlur(source, smooth, cv::Size(size, size), size / 5.0);
    perPixel(state, picture);
}
BENCHMARK(blurOfOpenCv)->ArgsProduct({{4, 64}, {Mask}, {5}})->Unit(benchmark::kMillisecond);
BENCHMARK(blurOfOpenCv)->ArgsProduct({{4}, {Photo}, {5}})->Unit(benchmark::kMillisecond);

#endif

BENCHMARK(blur)->ArgsProduct({{4, 64}, {Mask}, {5}})->Unit(benchmark::kMillisecond);
BENCHMARK(blur)->ArgsProduct({{4}, {Mask}, {9, 15}})->Unit(benchmark::kMillisecond);
BENCHMARK(blur)->ArgsProduct({{4}, {Photo, Random}, {5}})->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
