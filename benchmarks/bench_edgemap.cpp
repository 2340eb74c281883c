// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The edge map of an opened picture, beside the same filters put together from OpenCV's.

#include "benchmarks/BenchmarkPictures.h"
#include "benchmarks/Measuring.h"
#include "imaging/EdgeMap.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>

#ifdef ORNEVO_HAVE_OPENCV
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#endif

namespace {

void edgeMap(benchmark::State &state, const QImage &picture)
{
    const auto edges = std::make_unique<std::uint8_t[]>(static_cast<std::size_t>(picture.sizeInBytes() / 4));
    measuring::repeat(state, [&] {
        imaging::computeEdgeMap(picture, edges.get());
        benchmark::DoNotOptimize(edges.get()[0]);
    });
    measuring::perPixel(state, picture.size());
}

void edgeMapOfPhoto(benchmark::State &state)
{
    edgeMap(state, benchmarkpictures::photoMosaic(measuring::megapixelsOf(state)));
}

// Flat levels: 0 is nothing but zeros, 239 has a product nearest to a whole number.
void edgeMapOfGrey(benchmark::State &state)
{
    QImage picture(2448, 1632, QImage::Format_RGB32);
    const int grey = static_cast<int>(state.range(0));
    picture.fill(qRgb(grey, grey, grey));
    edgeMap(state, picture);
}

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

void edgeMapOfOpenCv(benchmark::State &state)
{
    cv::setNumThreads(1);
    QImage picture = benchmarkpictures::photoMosaic(measuring::megapixelsOf(state));
    const cv::Mat source(picture.height(), picture.width(), CV_8UC4, picture.bits(),
                         static_cast<std::size_t>(picture.bytesPerLine()));
    measuring::repeat(state, [&] { benchmark::DoNotOptimize(edgesOf(source).data); });
    measuring::perPixel(state, picture.size());
}
BENCHMARK(edgeMapOfOpenCv)->Name("edgeMap/openCv")->Apply(measuring::megapixels);

#endif

BENCHMARK(edgeMapOfPhoto)->Name("edgeMap/ours")->Apply(measuring::megapixels);
BENCHMARK(edgeMapOfGrey)->Arg(0)->Arg(128)->Arg(239)->Arg(248)->Arg(255)->Unit(benchmark::kMillisecond);

} // namespace
