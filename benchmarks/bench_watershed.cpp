// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The watersheds on mosaics of photographs, beside OpenCV's with the same seeds. Run it with
// --benchmark_enable_random_interleaving=true --benchmark_repetitions=5 and compare medians: noise then
// strikes all rows alike.

#include "benchmarks/BenchmarkPictures.h"
#include "benchmarks/Measuring.h"
#include "imaging/EdgeMap.h"
#include "segmentation/FrWatershed.h"
#include "segmentation/FrWatershedMany.h"
#include "tests/reference/ImageReferences.h"
#include "tests/support/Differences.h"

#include <benchmark/benchmark.h>

#ifdef ORNEVO_HAVE_OPENCV
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#endif

#include <cstdint>
#include <map>

namespace {

constexpr int manyRegions = 8;

/// A mosaic with its edge map.
struct Scene
{
    QImage picture;
    std::vector<std::uint8_t> edges;
};

Scene &scene(int megapixels)
{
    static std::map<int, Scene> made;
    Scene &on = made[megapixels];
    if (on.edges.empty()) {
        on.picture = benchmarkpictures::photoMosaic(megapixels);
        on.edges.resize(static_cast<std::size_t>(on.picture.width()) *
                        static_cast<std::size_t>(on.picture.height()));
        imaging::computeEdgeMap(on.picture, on.edges.data());
    }
    return on;
}

/// What the answers are checked on: small enough for the plain watershed.
Scene smallScene()
{
    const QImage picture = benchmarkpictures::smallPicture();
    return {picture, reference::edgeMap(picture)};
}

std::vector<std::vector<int>> plainSeeds(QSize size, int regions)
{
    std::vector<std::vector<int>> seeds;
    for (const QList<int> &stroke : benchmarkpictures::strokes(size, regions))
        seeds.emplace_back(stroke.begin(), stroke.end());
    return seeds;
}

QByteArray faultOfTwoRegions()
{
    Scene on = smallScene();
    std::vector<QList<int>> seeds = benchmarkpictures::strokes(on.picture.size(), 2);
    QList<int> result;
    QList<int> expected;
    FrWatershed(&on.picture, seeds[0], seeds[1], result, on.edges.data(), nullptr);
    reference::watershed(on.picture, seeds[0], seeds[1], expected, on.edges);
    return testsupport::firstDifference(result, expected, on.picture.width());
}

QByteArray faultOfManyRegions()
{
    Scene on = smallScene();
    const std::vector<std::vector<int>> seeds = plainSeeds(on.picture.size(), manyRegions);
    QList<QList<int>> result{{}};
    QList<QList<int>> expected{{}};
    FrWatershedMany(&on.picture, seeds, result, on.edges.data(), nullptr);
    reference::watershedMany(on.picture, seeds, expected, on.edges);
    return result == expected ? "" : "other regions";
}

void ornevoTwoRegions(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfTwoRegions()))
        return;
    Scene &on = scene(measuring::megapixelsOf(state));
    std::vector<QList<int>> seeds = benchmarkpictures::strokes(on.picture.size(), 2);
    measuring::repeat(state, [&] {
        QList<int> result;
        FrWatershed(&on.picture, seeds[0], seeds[1], result, on.edges.data(), nullptr);
        benchmark::DoNotOptimize(result.data());
    });
    measuring::perPixel(state, on.picture.size());
}

void ornevoManyRegions(benchmark::State &state)
{
    if (!measuring::isRight(state, faultOfManyRegions()))
        return;
    Scene &on = scene(measuring::megapixelsOf(state));
    const std::vector<std::vector<int>> seeds = plainSeeds(on.picture.size(), manyRegions);
    measuring::repeat(state, [&] {
        QList<QList<int>> result{{}};
        FrWatershedMany(&on.picture, seeds, result, on.edges.data(), nullptr);
        benchmark::DoNotOptimize(result.data());
    });
    measuring::perPixel(state, on.picture.size());
}

#ifdef ORNEVO_HAVE_OPENCV

cv::Mat markersOf(const Scene &on, int regions)
{
    cv::Mat markers = cv::Mat::zeros(on.picture.height(), on.picture.width(), CV_32SC1);
    int label = 0;
    for (const QList<int> &stroke : benchmarkpictures::strokes(on.picture.size(), regions)) {
        ++label;
        for (const int index : stroke)
            markers.ptr<int>()[index] = label;
    }
    return markers;
}

cv::Mat photoOf(const Scene &on)
{
    const cv::Mat view(on.picture.height(), on.picture.width(), CV_8UC4,
                       const_cast<uchar *>(on.picture.constBits()),
                       static_cast<std::size_t>(on.picture.bytesPerLine()));
    cv::Mat photo;
    cv::cvtColor(view, photo, cv::COLOR_BGRA2BGR);
    return photo;
}

cv::Mat edgeMapOf(const Scene &on)
{
    const cv::Mat view(on.picture.height(), on.picture.width(), CV_8UC1,
                       const_cast<std::uint8_t *>(on.edges.data()));
    cv::Mat edges;
    cv::cvtColor(view, edges, cv::COLOR_GRAY2BGR);
    return edges;
}

/// OpenCV's flooding ranks the neighbours otherwise, so that its regions are others than ours; but it has to
/// reach every pixel from the same seeds.
QByteArray faultOfOpenCv(cv::Mat (*pictureOf)(const Scene &), int regions)
{
    const Scene on = smallScene();
    const cv::Mat seeds = markersOf(on, regions);
    cv::Mat labels = seeds.clone();
    cv::watershed(pictureOf(on), labels);
    if (cv::countNonZero(labels == 0) != 0)
        return "pixels left over";
    return cv::countNonZero((seeds > 0) & (labels != seeds) & (labels != -1)) == 0 ? "" : "seeds were lost";
}

void openCv(benchmark::State &state, cv::Mat (*pictureOf)(const Scene &), int regions)
{
    if (!measuring::isRight(state, faultOfOpenCv(pictureOf, regions)))
        return;
    cv::setNumThreads(1);
    const Scene &on = scene(measuring::megapixelsOf(state));
    const cv::Mat picture = pictureOf(on);
    const cv::Mat seeds = markersOf(on, regions);
    cv::Mat markers = seeds.clone();
    cv::watershed(picture, markers); // ours run once before, too
    for (auto _ : state) {
        state.PauseTiming(); // the call overwrites its markers
        seeds.copyTo(markers);
        state.ResumeTiming();
        cv::watershed(picture, markers);
        benchmark::DoNotOptimize(markers.data);
    }
    measuring::perPixel(state, on.picture.size());
}

#endif

BENCHMARK(ornevoTwoRegions)->Name("twoRegions/ours")->Apply(measuring::megapixels);
BENCHMARK(ornevoManyRegions)->Name("manyRegions/ours")->Apply(measuring::megapixels);
#ifdef ORNEVO_HAVE_OPENCV
BENCHMARK_CAPTURE(openCv, edges, edgeMapOf, 2)
    ->Name("twoRegions/openCvOnEdges")
    ->Apply(measuring::megapixels);
BENCHMARK_CAPTURE(openCv, photo, photoOf, 2)->Name("twoRegions/openCvOnPhoto")->Apply(measuring::megapixels);
BENCHMARK_CAPTURE(openCv, many, edgeMapOf, manyRegions)
    ->Name("manyRegions/openCvOnEdges")
    ->Apply(measuring::megapixels);
#endif

} // namespace
