// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/WaveSegmentation.h"

#include "tests/core/Views.h"
#include "tests/reference/Pictures.h"
#include "tests/reference/WaveSegmentReference.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace coretest;
using namespace testpictures;
using reference::Picture;

TEST(Waves, areTheReference)
{
    for (const auto &[width, height] : awkwardExtents())
        for (const Picture &picture : {randomArgbPicture(width, height, 1), blobPicture(width, height, 2),
                                       rampPicture(width, height, 1), plateauPicture(width, height, 4, 3, 3)})
            for (const int threshold : {-1, 0, 1, 4, 60, 300, 766}) {
                const auto expected = reference::waveSegment(picture, threshold);
                std::vector<std::vector<int>> regions;
                ornevo::segmentWaves(viewOf(picture), threshold, [&](const ornevo::PixelIndices &pixels) {
                    regions.emplace_back(pixels.begin(), pixels.end());
                });
                ASSERT_EQ(regions, expected);

                std::vector<std::int32_t> expectedLabels(picture.data.size(), 0);
                std::int32_t label = 0;
                for (const std::vector<int> &region : expected) {
                    ++label;
                    for (const int index : region)
                        if (expectedLabels.at(static_cast<std::size_t>(index)) == 0)
                            expectedLabels.at(static_cast<std::size_t>(index)) = label;
                }
                std::vector<std::int32_t> labels(picture.data.size(), -5);
                ornevo::labelWaves(viewOf(picture), threshold, labels.data());
                ASSERT_EQ(labels, expectedLabels);
            }
}

TEST(Waves, tellAndStop)
{
    const Picture picture = randomPicture(10, 40, 1);
    std::vector<int> reported;
    ornevo::segmentWaves(
        viewOf(picture), 10, [](const ornevo::PixelIndices &) {},
        [&](int percent) { reported.push_back(percent); });
    std::vector<int> expected;
    for (int y = 0; y < 40; ++y)
        expected.push_back(y * 100 / 40);
    EXPECT_EQ(reported, expected);
    EXPECT_THROW(
        ornevo::segmentWaves(viewOf(picture), 10,
                             [](const ornevo::PixelIndices &) { throw std::runtime_error("enough"); }),
        std::runtime_error);
}
