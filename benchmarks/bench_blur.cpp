// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The smoothing of the preview's mask, beside OpenCV's Gaussian of the same size on four channels.

#include "benchmarks/BenchmarkPictures.h"
#include "benchmarks/Measuring.h"
#include "cutout/FourChannelBlur.h"

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

void blur(benchmark::State &state, QImage (*pictureOf)(int), int size)
{
    const QImage picture = pictureOf(measuring::megapixelsOf(state));
    QImage smooth = picture.copy();
    measuring::repeat(state, [&] { cutout::blurFourChannels(picture, smooth, size, size / 5.0, {}); });
    measuring::perPixel(state, picture.size());
}

#ifdef ORNEVO_HAVE_OPENCV

void blurOfOpenCv(benchmark::State &state, QImage (*pictureOf)(int), int size)
{
    cv::setNumThreads(1);
    QImage picture = pictureOf(measuring::megapixelsOf(state));
    const cv::Mat source(picture.height(), picture.width(), CV_8UC4, picture.bits(),
                         static_cast<std::size_t>(picture.bytesPerLine()));
    cv::Mat smooth = source.clone();
    measuring::repeat(state, [&] { cv::GaussianBlur(source, smooth, cv::Size(size, size), size / 5.0); });
    measuring::perPixel(state, picture.size());
}
BENCHMARK_CAPTURE(blurOfOpenCv, mask, objectMask, 5)->Name("maskBlur/openCv")->Apply(measuring::megapixels);

#endif

BENCHMARK_CAPTURE(blur, mask, objectMask, 5)->Name("maskBlur/ours")->Apply(measuring::megapixels);
BENCHMARK_CAPTURE(blur, wide, objectMask, 15)->Name("maskBlurOfSize15/ours")->Arg(4);
// What no mask is: every pixel differs from its neighbours.
BENCHMARK_CAPTURE(blur, noise, randomBytes, 5)->Name("noiseBlur/ours")->Arg(4);

} // namespace
