// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The edge map of an opened picture, beside the same filters put together from OpenCV's.

#include "benchmarks/BenchmarkPictures.h"
#include "benchmarks/Measuring.h"
#include "imaging/EdgeMap.h"
#include "tests/reference/ImageReferences.h"
#include "tests/support/Differences.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <vector>

#ifdef ORNEVO_HAVE_OPENCV
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#endif

namespace {

using Edges = std::vector<std::uint8_t>;

Edges edgesOfOurs(const QImage &picture)
{
    Edges edges(static_cast<std::size_t>(picture.sizeInBytes() / 4));
    imaging::computeEdgeMap(picture, edges.data());
    return edges;
}

QByteArray faultOfOurs()
{
    const QImage picture = benchmarkpictures::smallPicture();
    return testsupport::firstDifference(edgesOfOurs(picture), reference::edgeMap(picture), picture.width());
}

void edgeMap(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfOurs()))
        return;
    const QImage &picture = benchmarkpictures::photoMosaic(measuring::megapixelsOf(state));
    const auto edges = std::make_unique<std::uint8_t[]>(static_cast<std::size_t>(picture.sizeInBytes() / 4));
    measuring::repeat(state, [&] {
        imaging::computeEdgeMap(picture, edges.get());
        benchmark::DoNotOptimize(edges.get()[0]);
    });
    measuring::perPixel(state, picture.size());
}
BENCHMARK(edgeMap)->Name("edgeMap/ours")->Apply(measuring::megapixels);

#ifdef ORNEVO_HAVE_OPENCV

cv::Mat magnitudeOf(const cv::Mat &plane)
{
    cv::Mat smooth, alongX, alongY, length;
    cv::GaussianBlur(plane, smooth, cv::Size(7, 7), 1.4);
    cv::Sobel(smooth, alongX, CV_16S, 1, 0);
    cv::Sobel(smooth, alongY, CV_16S, 0, 1);
    cv::Mat floatX, floatY;
    alongX.convertTo(floatX, CV_32F);
    alongY.convertTo(floatY, CV_32F);
    cv::magnitude(floatX, floatY, length);
    return length;
}

cv::Mat edgesOf(const cv::Mat &picture)
{
    std::vector<cv::Mat> planes;
    cv::split(picture, planes);
    const cv::Mat sum = magnitudeOf(planes[0]) + magnitudeOf(planes[1]) + magnitudeOf(planes[2]);
    cv::Mat average;
    sum.convertTo(average, CV_8U, 1.0 / 3);
    const double mean = cv::mean(average)[0];
    double largest = 0;
    cv::minMaxLoc(average, nullptr, &largest);
    cv::Mat lifted, below = average < mean;
    cv::add(average, cv::Scalar(255 - largest), lifted);
    lifted.setTo(0, below);
    return lifted;
}

cv::Mat viewOf(QImage &picture)
{
    return {picture.height(), picture.width(), CV_8UC4, picture.bits(),
            static_cast<std::size_t>(picture.bytesPerLine())};
}

/// Whether it finds edges where we do: the two round otherwise, and the mean decides over more or less of
/// the weak ones.
QByteArray faultOfOpenCv()
{
    constexpr double alike = 0.8;
    QImage picture = benchmarkpictures::smallPicture();
    Edges ours = reference::edgeMap(picture);
    const cv::Mat expected(picture.height(), picture.width(), CV_8UC1, ours.data());
    const cv::Mat same = (edgesOf(viewOf(picture)) > 0) == (expected > 0);
    const double part = cv::countNonZero(same) / double(same.total());
    return part > alike ? QByteArray() : "alike in only " + QByteArray::number(part);
}

void edgeMapOfOpenCv(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfOpenCv()))
        return;
    cv::setNumThreads(1);
    QImage picture = benchmarkpictures::photoMosaic(measuring::megapixelsOf(state));
    const cv::Mat source = viewOf(picture);
    measuring::repeat(state, [&] { benchmark::DoNotOptimize(edgesOf(source).data); });
    measuring::perPixel(state, picture.size());
}
BENCHMARK(edgeMapOfOpenCv)->Name("edgeMap/openCv")->Apply(measuring::megapixels);

#endif

} // namespace
