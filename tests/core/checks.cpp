// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// What can't be right is refused, with the name of the argument, before anything is done.

#include "core/Checks.h"
#include "core/EdgeDetectors.h"
#include "core/EdgeMap.h"
#include "core/Feathering.h"
#include "core/GaussianBlur.h"
#include "core/Version.h"
#include "core/Watershed.h"
#include "core/WaveSegmentation.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>

using namespace ornevo;

namespace {

std::uint8_t bytes[400];
const PictureView picture(bytes, 10, 10);
const MutablePictureView writable(bytes, 10, 10);
const MutablePlaneView plane(bytes, 10, 10);
const std::vector<int> one = {55};
const auto ignore = [](const PixelIndices &) {};

/// The first word of the complaint, "" when there was none.
template <typename Call> std::string blamed(Call call)
{
    try {
        call();
    } catch (const std::invalid_argument &error) {
        const std::string text = error.what();
        return text.substr(0, text.find(' '));
    }
    return "";
}

const PictureView badPictures[] = {
    {nullptr, 10, 10}, {bytes, -1, 10}, {bytes, 10, -1}, {bytes, 10, 10, 39}, {bytes, 10, 10, -40}};
const MutablePictureView badWritables[] = {
    {nullptr, 10, 10}, {bytes, -1, 10}, {bytes, 10, -1}, {bytes, 10, 10, 39}, {bytes, 10, 10, -40}};
const MutablePlaneView badPlanes[] = {{nullptr, 10, 10},      {bytes, -1, 10},        {bytes, 10, -1},
                                      {bytes, 10, 10, 9},     {bytes, 10, 10, -10},   {bytes, 10, 10, 20, 2},
                                      {bytes, 10, 10, 10, 0}, {bytes, 10, 10, 10, -1}};

} // namespace

TEST(Checks, pictures)
{
    for (const PictureView &bad : badPictures) {
        EXPECT_EQ(blamed([&] { computeEdgeMap(bad, plane); }), "picture");
        EXPECT_EQ(blamed([&] { (void)floodTwoRegions(bad, plane, one, one); }), "picture");
        EXPECT_EQ(blamed([&] { (void)floodRegions(bad, plane, {one}); }), "picture");
        EXPECT_EQ(blamed([&] { segmentWaves(bad, 1, ignore); }), "picture");
        EXPECT_EQ(blamed([&] { blurFourChannels(bad, writable, 3, 1.0); }), "src");
    }
    for (const MutablePictureView &bad : badWritables) {
        EXPECT_EQ(blamed([&] { featherEdge(bad, plane, 3); }), "picture");
        EXPECT_EQ(blamed([&] { blurFourChannels(picture, bad, 3, 1.0); }), "dst");
    }
}

TEST(Checks, planes)
{
    for (const MutablePlaneView &bad : badPlanes) {
        EXPECT_EQ(blamed([&] { computeEdgeMap(picture, bad); }), "edges");
        EXPECT_EQ(blamed([&] { (void)floodTwoRegions(picture, bad, one, one); }), "edges");
        EXPECT_EQ(blamed([&] { (void)floodRegions(picture, bad, {one}); }), "edges");
        EXPECT_EQ(blamed([&] { featherEdge(writable, bad, 3); }), "mask");
        EXPECT_EQ(blamed([&] { blurPlane(bad, plane, 1.0, 3); }), "src");
        EXPECT_EQ(blamed([&] { blurPlane(plane, bad, 1.0, 3); }), "dst");
        EXPECT_EQ(blamed([&] { sobelMagnitude(bad, plane); }), "plane");
        EXPECT_EQ(blamed([&] { sobelMagnitude(plane, bad); }), "magnitude");
    }
}

TEST(Checks, sizesThatDiffer)
{
    const MutablePlaneView smaller(bytes, 9, 10);
    EXPECT_EQ(blamed([&] { computeEdgeMap(picture, smaller); }), "edges");
    EXPECT_EQ(blamed([&] { (void)floodTwoRegions(picture, smaller, one, one); }), "edges");
    EXPECT_EQ(blamed([&] { blurPlane(plane, smaller, 1.0, 3); }), "dst");
    EXPECT_EQ(blamed([&] { sobelMagnitude(plane, smaller); }), "magnitude");
    EXPECT_EQ(blamed([&] { blurFourChannels(picture, MutablePictureView(bytes, 10, 9), 3, 1.0); }), "dst");
    EXPECT_EQ(blamed([&] { blurChannels({bytes, 5, 5, 20, 3}, {bytes, 5, 5, 20, 4}, 3, 1.0); }), "dst");
    EXPECT_EQ(blamed([&] { blurChannels({bytes, 5, 5, 25, 5}, {bytes, 5, 5, 25, 5}, 3, 1.0); }), "src");
}

TEST(Checks, asManyPixelsAsAnIntCanCount)
{
    constexpr int most = std::numeric_limits<int>::max();
    EXPECT_NO_THROW(checks::indexable(1, most, "picture"));
    EXPECT_NO_THROW(checks::indexable(most, 1, "picture"));
    EXPECT_EQ(blamed([] { checks::indexable(1 << 16, 1 << 15, "picture"); }), "picture");
}

TEST(Checks, picturesThatNoIntCanCount)
{
    constexpr int many = 1 << 16;
    const PictureView huge(bytes, many, many);
    const MutablePlaneView hugePlane(bytes, many, many);
    EXPECT_EQ(blamed([&] { (void)floodTwoRegions(huge, hugePlane, one, one); }), "picture");
    EXPECT_EQ(blamed([&] { segmentWaves(huge, 1, ignore); }), "picture");
    EXPECT_EQ(blamed([&] { featherEdge(writable, hugePlane, 1); }), "mask");
    constexpr int widest = std::numeric_limits<int>::max();
    EXPECT_EQ(blamed([&] { computeEdgeMap({bytes, widest, 1}, {bytes, widest, 1}); }), "picture");
    EXPECT_EQ(blamed([&] {
                  (void)floodTwoRegions({bytes, widest, 1}, {bytes, widest, 1}, one, one);
              }),
              "picture");
    EXPECT_EQ(blamed([&] { blurFourChannels({bytes, widest, 1}, {bytes, widest, 1}, 3, 1.0); }), "src");
}

TEST(Checks, results)
{
    const Regions regions = floodRegions(picture, plane, {one});
    ASSERT_TRUE(regions.flooded());
    std::int32_t labels[100];
    EXPECT_EQ(blamed([&] { regions.listPixels({}); }), "destinations");
    EXPECT_EQ(blamed([&] { regions.writeMask(1, {bytes, 9, 10}); }), "mask");
    EXPECT_EQ(blamed([&] { regions.writeLabels(labels, 10, 9); }), "labels");
    EXPECT_EQ(blamed([&] { regions.writeLabels(nullptr, 10, 10); }), "labels");
    EXPECT_EQ(blamed([&] { regions.writeLabels(labels, 10, 10, {1, 2}); }), "names");
    EXPECT_EQ(blamed([&] { segmentWaves(picture, 1, {}); }), "region");
    EXPECT_EQ(blamed([&] { labelWaves(picture, 1, nullptr); }), "labels");
}

TEST(Checks, viewsWithoutPixelsMayBeNull)
{
    for (const auto &[width, height] : {std::pair(0, 0), std::pair(0, 5), std::pair(5, 0)}) {
        const PictureView noPicture(nullptr, width, height);
        const MutablePictureView noWritable(nullptr, width, height);
        const MutablePlaneView noPlane(nullptr, width, height);
        computeEdgeMap(noPicture, noPlane);
        blurFourChannels(noPicture, noWritable, 3, 1.0);
        blurPlane(noPlane, noPlane, 1.0, 3);
        blurPlaneNineTaps(noPlane, noPlane, 1.0);
        blurPlaneFiveByFive(noPlane, noPlane);
        blurPlaneThreeByThree(noPlane, noPlane);
        sobelMagnitude(noPlane, noPlane);
        featherEdge(noWritable, noPlane, 3);
        segmentWaves(noPicture, 1, ignore);
        labelWaves(noPicture, 1, nullptr);
        EXPECT_FALSE(floodTwoRegions(noPicture, noPlane, one, one).flooded());
        const Regions none = floodRegions(noPicture, noPlane, {one});
        EXPECT_FALSE(none.flooded());
        none.writeMask(1, noPlane);
        none.writeLabels(nullptr, width, height);
    }
}

TEST(Version, isThatOfTheHeaders)
{
    EXPECT_STREQ(version(), ORNEVO_VERSION_STRING);
    EXPECT_EQ(ORNEVO_VERSION / 10000, ORNEVO_VERSION_MAJOR);
}
