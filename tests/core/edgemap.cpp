// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/EdgeMap.h"

#include "core/EdgeDetectors.h"
#include "core/EdgeKernels.h"
#include "tests/core/SimdTargets.h"
#include "tests/core/Views.h"
#include "tests/reference/EdgeDetectorsReference.h"
#include "tests/reference/Pictures.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

using namespace coretest;
using namespace testpictures;
using reference::Picture;

namespace {

void expectReference(const Picture &picture)
{
    SCOPED_TRACE(testing::Message() << picture.width << " x " << picture.height);
    const std::vector<std::uint8_t> expected = reference::edgeMap(picture);
    onEveryTarget([&] {
        for (const int padding : {0, 13}) {
            GuardedRows edges(std::vector<std::uint8_t>(expected.size()).data(), picture.width,
                              picture.height, padding);
            ornevo::computeEdgeMap(viewOf(picture),
                                   {edges.row(0), picture.width, picture.height, edges.stride()});
            ASSERT_EQ(edges.values(), expected);
            ASSERT_TRUE(edges.untouchedAround());
        }
    });
}

} // namespace

TEST(EdgeMap, isTheReference)
{
    for (const Picture &picture :
         {randomPicture(301, 203, 1), randomArgbPicture(130, 70, 2), blobPicture(640, 320, 3),
          rampPicture(256, 99, 1), rampPicture(256, 99, 7), plateauPicture(257, 129, 9, 4, 4),
          plateauPicture(257, 129, 5, 2, 5), stepPicture(77, 41, 38, 0xFF000000U, 0xFFFFFFFFU),
          greyStepsPicture(200, 100, 6), greyPicture(150, 90, sparsePlane(150, 90, 40, 7)),
          constantPicture(65, 65, 0xFFFFFFFFU)})
        expectReference(picture);
}

// A constant plane inside a frame of another grey: the flat part of every level, and all steps up to it.
TEST(EdgeMap, ofEveryGrey)
{
    for (std::uint32_t grey = 0; grey < 256; ++grey) {
        Picture picture = constantPicture(60, 40, grey << 16 | (255 - grey) << 8 | (grey * 7) % 256);
        for (int y = 12; y < 28; ++y)
            for (int x = 15; x < 45; ++x)
                picture.at(x, y) = 0xFF000000U | 239U << 16 | (grey * 3) % 256;
        expectReference(picture);
    }
}

TEST(EdgeMap, ofAwkwardSizes)
{
    auto sizes = awkwardExtents();
    for (int width = 1; width < 84; ++width)
        sizes.emplace_back(width, 9 + width % 5);
    for (int height = 1; height < 16; ++height)
        sizes.emplace_back(23, height);
    for (const int width : {1020, 1023, 1024, 1025, 1027, 2047, 2048, 3100})
        sizes.emplace_back(width, 12);
    for (const auto &[width, height] : sizes)
        expectReference(randomPicture(width, height, 11));
}

// Wider than the rows that are worked on at a time, by a little and by more.
TEST(EdgeMap, ofTilesOfColumns)
{
    for (const auto &[width, height] :
         {std::pair{65536, 9}, {65537, 9}, {131071, 8}, {196611, 11}, {70000, 3}})
        expectReference(randomPicture(width, height, 12));
}

// Nearly black areas, where products are small and zeros abound.
TEST(EdgeMap, ofDeepBlack)
{
    for (std::uint32_t seed = 0; seed < 8; ++seed) {
        expectReference(greyPicture(180, 120, plateauPlane(180, 120, 2 + static_cast<int>(seed), seed)));
        expectReference(greyPicture(180, 120, sparsePlane(180, 120, 200, seed)));
    }
}

// Why gradients may be measured in floats: up to the largest sum of squares the root is truncated to the same
// number.
TEST(EdgeMap, floatRootsOfSquares)
{
    for (int n = 0; n <= 2 * 1020 * 1020; ++n)
        if (static_cast<int>(std::sqrt(static_cast<float>(n))) !=
            static_cast<int>(std::sqrt(static_cast<double>(n))))
            FAIL() << n;
}

// A product of the vertical pass goes through eight roundings, of 2^-24 of it at most each, and through one
// to a whole unit. With less slack one next to a whole number could get another floor than in doubles, on a
// picture that nobody may ever meet; with more, more pixels than needed are computed twice.
TEST(EdgeMap, hasSlackForEveryRounding)
{
    const double eightRoundings = std::pow(1.0 + std::ldexp(1.0, -24), 8) - 1.0;
    const auto expectJustAbove = [=](int slack, double largestProduct, int bits) {
        const double off = eightRoundings * std::ldexp(largestProduct, bits) + 0.5;
        EXPECT_GT(slack, off);
        EXPECT_LE(slack, off + 1.5);
    };
    for (const double sigma : {0.4, 0.7, 1.0, 1.4, 2.0, 5.0}) {
        SCOPED_TRACE(sigma);
        const ornevo::edgekernels::Weights weights(sigma);
        const auto [w0, w1, w2, w3] = weights.exact;
        expectJustAbove(weights.innerSlack, std::max({255 * w0, 510 * w1, 510 * w2}), 16);
        expectJustAbove(weights.outerSlack, 510 * w3, 17);
    }
}

TEST(EdgeMap, readsPixelsOffAnyAlignment)
{
    const Picture picture = randomPicture(83, 41, 5);
    GuardedRows rows(bytesOf(picture).data(), 4 * picture.width, picture.height);
    onEveryTarget([&] {
        std::vector<std::uint8_t> edges(83 * 41);
        ornevo::computeEdgeMap({rows.row(0), 83, 41, rows.stride()}, {edges.data(), 83, 41});
        ASSERT_EQ(edges, reference::edgeMap(picture));
    });
}

TEST(EdgeMap, tellsAndStops)
{
    const Picture picture = randomPicture(40, 30, 3);
    std::vector<std::uint8_t> edges(40 * 30);
    std::vector<int> reported;
    ornevo::computeEdgeMap(viewOf(picture), {edges.data(), 40, 30},
                           [&](int percent) { reported.push_back(percent); });
    EXPECT_TRUE(std::is_sorted(reported.begin(), reported.end()));
    EXPECT_EQ(reported.back(), 100);
    EXPECT_THROW(ornevo::computeEdgeMap(viewOf(picture), {edges.data(), 40, 30},
                                        [](int) { throw std::runtime_error("enough"); }),
                 std::runtime_error);
}

TEST(EdgeDetectors, areTheReference)
{
    for (const auto &[width, height] : awkwardExtents()) {
        reference::Plane plane(width, height);
        plane.data = randomPlane(width, height, 21);
        reference::Plane magnitude(width, height, 9);
        ornevo::sobelMagnitude(viewOf(plane), mutableViewOf(magnitude));
        EXPECT_EQ(magnitude, reference::sobelMagnitude(plane));
        for (const int xOrder : {0, 1}) {
            reference::PlaneOf<std::int16_t> derivative(width, height, 9);
            ornevo::sobelDerivative(viewOf(plane), {derivative.data.data(), width, height, width},
                                    xOrder != 0 ? ornevo::Derivative::horizontal
                                                : ornevo::Derivative::vertical);
            EXPECT_EQ(derivative, reference::sobel(plane, xOrder));
        }
        const Picture picture = randomArgbPicture(width, height, 22);
        reference::PlaneOf<std::uint16_t> words(width, height, 9);
        reference::PlaneOf<std::uint16_t> expectedWords = words;
        reference::colorDifference16(bytesOf(picture), expectedWords);
        ornevo::colourDifference(viewOf(picture), {words.data.data(), width, height, width});
        EXPECT_EQ(words, expectedWords);
        reference::Plane bytes(width, height, 9);
        reference::Plane expectedBytes = bytes;
        reference::colorDifference8(bytesOf(picture), expectedBytes);
        ornevo::colourDifference(viewOf(picture), mutableViewOf(bytes));
        EXPECT_EQ(bytes, expectedBytes);
    }
}
