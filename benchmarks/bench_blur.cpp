// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The smoothing of the preview's mask, beside OpenCV's Gaussian of the same size on four channels.

#include "benchmarks/BenchmarkPictures.h"
#include "benchmarks/Measuring.h"
#include "cutout/FourChannelBlur.h"
#include "tests/reference/ImageReferences.h"
#include "tests/support/Differences.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>

#ifdef ORNEVO_HAVE_OPENCV
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#endif

namespace {

/// A mask as a flooding leaves it: one large object with a rough outline.
QImage objectMask(QSize size)
{
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

QImage objectMaskOf(const benchmark::State &state)
{
    return objectMask(benchmarkpictures::photoMosaic(measuring::megapixelsOf(state)).size());
}

constexpr int taps = 5;
constexpr double sigma = taps / 5.0;

/// As the plain blur makes it, of a picture in which no pixel is like its neighbours, too.
QByteArray faultOfOurs()
{
    const QImage photo = benchmarkpictures::smallPicture();
    for (const QImage &picture : {objectMask(photo.size()), photo}) {
        QImage smooth = picture.copy();
        QImage expected = picture.copy();
        cutout::blurFourChannels(picture, smooth, taps, sigma, {});
        reference::fourChannelBlur(picture, expected, taps, sigma);
        const QByteArray fault = testsupport::firstDifference(smooth, expected);
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}

void maskBlur(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfOurs()))
        return;
    const QImage picture = objectMaskOf(state);
    QImage smooth = picture.copy();
    measuring::repeat(state, [&] { cutout::blurFourChannels(picture, smooth, taps, sigma, {}); });
    measuring::perPixel(state, picture.size());
}
BENCHMARK(maskBlur)->Name("maskBlur/ours")->Apply(measuring::megapixels);

#ifdef ORNEVO_HAVE_OPENCV

cv::Mat viewOf(QImage &picture)
{
    return {picture.height(), picture.width(), CV_8UC4, picture.bits(),
            static_cast<std::size_t>(picture.bytesPerLine())};
}

/// Ours is wider than its sigma, so that the two differ along the border of the object; but
/// they are nearer to each other than to the sharp mask.
QByteArray faultOfOpenCv()
{
    QImage sharp = objectMask(benchmarkpictures::smallPicture().size());
    QImage expected = sharp.copy();
    reference::fourChannelBlur(sharp, expected, taps, sigma);
    cv::Mat smooth;
    cv::GaussianBlur(viewOf(sharp), smooth, cv::Size(taps, taps), sigma);
    const double ratio = cv::norm(smooth, viewOf(expected), cv::NORM_L1) /
                         cv::norm(viewOf(sharp), viewOf(expected), cv::NORM_L1);
    return ratio < 0.75 ? QByteArray() : "another blur, by " + QByteArray::number(ratio);
}

void maskBlurOfOpenCv(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfOpenCv()))
        return;
    cv::setNumThreads(1);
    QImage picture = objectMaskOf(state);
    const cv::Mat source = viewOf(picture);
    cv::Mat smooth = source.clone();
    measuring::repeat(state, [&] { cv::GaussianBlur(source, smooth, cv::Size(taps, taps), sigma); });
    measuring::perPixel(state, picture.size());
}
BENCHMARK(maskBlurOfOpenCv)->Name("maskBlur/openCv")->Apply(measuring::megapixels);

#endif

} // namespace
