// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// The flooding and its parts against plain versions of the same.

#include "core/LabelPlane.h"
#include "core/LevelQueues.h"
#include "core/StepCosts.h"
#include "core/Watershed.h"
#include "tests/core/SimdTargets.h"
#include "tests/core/Views.h"
#include "tests/reference/Pictures.h"
#include "tests/reference/WatershedReference.h"

#include <algorithm>
#include <deque>
#include <numeric>
#include <stdexcept>

using namespace coretest;
using namespace testpictures;
using namespace ornevo::flooding;
using reference::Picture;

namespace {

using Bytes = std::vector<std::uint8_t>;
using SeedLists = std::vector<std::vector<int>>;

ornevo::PlaneView planeOf(const Bytes &edges, const Picture &picture)
{
    return {edges.data(), picture.width, picture.height};
}

SeedLists seedLists(const Picture &picture, int regions, int perRegion, std::uint32_t seed)
{
    SeedLists lists;
    for (int k = 0; k < regions; ++k)
        lists.push_back(randomPixels(picture.width, picture.height, perRegion,
                                     seed + 31U * static_cast<std::uint32_t>(k)));
    return lists;
}

void expectLabels(const ornevo::Regions &regions, const std::optional<std::vector<std::int32_t>> &expected,
                  const Picture &picture, std::size_t lists)
{
    ASSERT_EQ(regions.flooded(), expected.has_value());
    std::vector<std::int32_t> wanted(picture.data.size(), 0);
    if (expected)
        std::transform(expected->begin(), expected->end(), wanted.begin(),
                       [](std::int32_t label) { return std::max(label, 0); });
    std::vector<std::int32_t> labels(picture.data.size(), -9);
    regions.writeLabels(labels.data(), picture.width, picture.height);
    ASSERT_EQ(labels, wanted);
    if (!expected)
        return;

    const std::vector<std::size_t> sizes = regions.sizes();
    ASSERT_EQ(sizes.size(), lists);
    for (std::size_t k = 1; k <= lists; ++k)
        ASSERT_EQ(sizes[k - 1], static_cast<std::size_t>(
                                    std::count(wanted.begin(), wanted.end(), static_cast<std::int32_t>(k))));
}

void expectTwoRegions(const Picture &picture, const Bytes &edges, const std::vector<int> &keep,
                      const std::vector<int> &remove)
{
    auto expected = reference::watershed(picture, {keep, remove}, edges, reference::EdgeCost::strength);
    if (keep.empty() || remove.empty())
        expected.reset();
    expectLabels(ornevo::floodTwoRegions(viewOf(picture), planeOf(edges, picture), keep, remove), expected,
                 picture, 2);
}

void expectManyRegions(const Picture &picture, const Bytes &edges, const SeedLists &seeds)
{
    const auto expected = reference::watershed(picture, seeds, edges, reference::EdgeCost::highest);
    expectLabels(ornevo::floodRegions(viewOf(picture), planeOf(edges, picture), {seeds.begin(), seeds.end()}),
                 expected, picture, seeds.size());
}

void expectBoth(const Picture &picture, const Bytes &edges, int seedsPerRegion, std::uint32_t seed)
{
    SCOPED_TRACE(testing::Message() << picture.width << " x " << picture.height << ", " << seedsPerRegion
                                    << " seeds, " << seed);
    const SeedLists lists = seedLists(picture, 2, seedsPerRegion, seed);
    expectTwoRegions(picture, edges, lists[0], lists[1]);
    expectManyRegions(picture, edges, seedLists(picture, 3, seedsPerRegion, seed + 1));
}

} // namespace

TEST(Flooding, isTheReference)
{
    auto sizes = awkwardExtents();
    for (const auto &more : {std::pair(17, 66), std::pair(65, 40), std::pair(131, 90)})
        sizes.push_back(more);
    std::uint32_t seed = 1;
    for (const auto &[w, h] : sizes) {
        ++seed;
        for (const Picture &picture :
             {randomPicture(w, h, seed), constantPicture(w, h, 0x5A781EU), rampPicture(w, h, 3),
              plateauPicture(w, h, 5, 4, seed), greyStepsPicture(w, h, seed), blobPicture(w, h, seed)})
            for (const Bytes &edges :
                 {constantPlane(w, h, 0), constantPlane(w, h, 255), randomPlane(w, h, seed),
                  sparsePlane(w, h, 3, seed), plateauPlane(w, h, 3, seed)})
                for (const int seeds : {1, 7, 60})
                    expectBoth(picture, edges, seeds, seed + static_cast<std::uint32_t>(seeds));
    }
}

// Across the widths of the labels: eight regions fit into a byte.
TEST(Flooding, ofManyRegions)
{
    for (const int regions : {1, 2, 7, 8, 9, 10, 40, 300})
        for (std::uint32_t seed = 1; seed < 4; ++seed) {
            const Picture picture = blobPicture(150, 110, seed);
            for (const Bytes &edges : {sparsePlane(150, 110, 4, seed), constantPlane(150, 110, 0)})
                expectManyRegions(picture, edges, seedLists(picture, regions, 9, seed));
        }
}

TEST(Flooding, ignoresSeedsOffThePicture)
{
    const Picture picture = blobPicture(40, 30, 9);
    const Bytes edges = sparsePlane(40, 30, 3, 9);
    expectTwoRegions(picture, edges, {-1, -2147483647, 40 * 30, 2147483647, 40 * 10 + 7, 0, 40 * 12},
                     {40 * 20 + 30, 40 * 30 - 1, 79});
    expectTwoRegions(picture, edges, {-5}, {40 * 20 + 30});
    expectTwoRegions(picture, edges, {0, 39, 40}, {1});
    expectTwoRegions(picture, edges, {}, {41});
    expectTwoRegions(picture, edges, {45}, {45});
    expectManyRegions(picture, edges, {{}, {}});
    expectManyRegions(picture, edges, {});
}

// Levels that need many blocks and give them back.
TEST(Flooding, longQueues)
{
    const Picture picture = greyPicture(900, 700, plateauPlane(900, 700, 2, 3));
    expectBoth(picture, constantPlane(900, 700, 0), 400, 2);
    expectBoth(picture, plateauPlane(900, 700, 4, 8), 2000, 3);
}

TEST(Flooding, readsPaddedRowsOffAnyAlignment)
{
    const Picture picture = blobPicture(61, 47, 4);
    const Bytes edges = sparsePlane(61, 47, 3, 4);
    const SeedLists seeds = seedLists(picture, 2, 5, 8);
    GuardedRows pixels(bytesOf(picture).data(), 4 * 61, 47);
    GuardedRows edgeRows(edges.data(), 61, 47);
    onEveryTarget([&] {
        expectLabels(ornevo::floodTwoRegions({pixels.row(0), 61, 47, pixels.stride()},
                                             {edgeRows.row(0), 61, 47, edgeRows.stride()}, seeds[0],
                                             seeds[1]),
                     reference::watershed(picture, seeds, edges, reference::EdgeCost::strength), picture, 2);
    });
}

TEST(Flooding, tellsEveryTenThousandPixelsAndStops)
{
    const Picture picture = blobPicture(300, 200, 4);
    const Bytes edges(picture.data.size(), 0);
    const std::vector<int> keep{300 * 50 + 60};
    const std::vector<int> remove{300 * 150 + 240};
    std::vector<int> reported;
    const auto flood = [&](const ornevo::ProgressCallback &progress) {
        return ornevo::floodTwoRegions(viewOf(picture), planeOf(edges, picture), keep, remove, progress);
    };
    EXPECT_TRUE(flood([&](int percent) { reported.push_back(percent); }).flooded());
    // 298 x 198 pixels less two seeds: five full ten thousands
    EXPECT_EQ(reported, std::vector<int>({16, 33, 50, 66, 83}));
    EXPECT_THROW(flood([](int) { throw std::runtime_error("enough"); }), std::runtime_error);
}

TEST(Regions, inEveryForm)
{
    const Picture picture = blobPicture(70, 50, 4);
    const Bytes edges = sparsePlane(70, 50, 3, 9);
    const SeedLists seeds = seedLists(picture, 3, 5, 8);
    const ornevo::Regions regions =
        ornevo::floodRegions(viewOf(picture), planeOf(edges, picture), {seeds.begin(), seeds.end()});
    const auto labels = reference::watershed(picture, seeds, edges, reference::EdgeCost::highest);
    ASSERT_TRUE(labels && regions.flooded());

    const std::vector<std::size_t> sizes = regions.sizes();
    std::vector<std::vector<int>> lists(3);
    for (const std::size_t k : {0U, 2U})
        lists[k].resize(sizes[k]);
    regions.listPixels({lists[0].data(), nullptr, lists[2].data()});
    for (std::size_t k = 1; k <= 3; ++k) {
        std::vector<int> expected;
        for (std::size_t i = 0; i < labels->size() && k != 2; ++i)
            if (labels->at(i) == static_cast<int>(k))
                expected.push_back(static_cast<int>(i));
        EXPECT_EQ(lists[k - 1], expected);

        GuardedRows mask(Bytes(edges.size(), 3).data(), 70, 50);
        regions.writeMask(k, {mask.row(0), 70, 50, mask.stride()}, 200);
        Bytes expectedMask;
        for (const std::int32_t label : *labels)
            expectedMask.push_back(label == static_cast<int>(k) ? 200 : 0);
        EXPECT_EQ(mask.values(), expectedMask);
        EXPECT_TRUE(mask.untouchedAround());
    }

    std::vector<std::int32_t> named(labels->size());
    regions.writeLabels(named.data(), 70, 50, {70, 5, 2147483647});
    for (std::size_t i = 0; i < named.size(); ++i) {
        const std::int32_t names[] = {70, 5, 2147483647};
        const std::int32_t label = labels->at(i);
        ASSERT_EQ(named[i], label > 0 ? names[label - 1] : 0);
    }
}

TEST(LevelQueues, areFirstInFirstOut)
{
    Random random(5);
    LevelQueues queues(0);
    std::vector<std::deque<std::uint32_t>> plain(LevelQueues::levels);
    std::uint32_t next = 1;
    for (int round = 0; round < 3000; ++round) {
        for (int n = random.below(40); n > 0; --n) {
            const int level = random.below(2) == 0 ? random.below(4) : random.below(256);
            queues.push(static_cast<unsigned>(level), next);
            plain[static_cast<std::size_t>(level)].push_back(next++);
        }
        if (queues.empty())
            continue;
        const unsigned lowest = queues.lowest();
        std::deque<std::uint32_t> &expected = plain[lowest];
        for (unsigned below = 0; below < lowest; ++below)
            ASSERT_TRUE(plain[below].empty());
        LevelQueues::Drain drain(queues, lowest);
        const int atMost = random.below(60);
        for (int taken = 0; taken < atMost && drain.more(); ++taken) {
            ASSERT_LT(drain.ahead(), next);
            ASSERT_EQ(drain.take(), expected.front());
            expected.pop_front();
            drain.reserve();
            for (int pushed = random.below(5); pushed > 0; --pushed) {
                drain.push(next);
                expected.push_back(next++);
            }
        }
        drain.close();
        ASSERT_EQ(queues.empty(), std::all_of(plain.begin(), plain.end(), [](auto &q) { return q.empty(); }));
    }
    EXPECT_GT(next, 60000U); // else too little was queued to reach across the blocks
}

// Every instruction set of this machine gives what one pixel at a time gives.
TEST(StepCosts, areTheReference)
{
    for (const int w : {3, 4, 5, 8, 9, 16, 17, 33, 64, 65, 66, 67, 200}) {
        const int h = 12;
        for (const Picture &picture :
             {greyStepsPicture(w, h, 3), randomPicture(w, h, 2), blobPicture(w, h, 1)})
            for (const auto rule : {EdgeCost::strength, EdgeCost::highest}) {
                const Bytes edges = sparsePlane(w, h, 2, static_cast<std::uint32_t>(w));
                const auto cost = [&](int toX, int toY, int x, int y, int againstX, int againstY) {
                    const int edge = edges[static_cast<std::size_t>(toY * w + toX)];
                    if (edge != 0)
                        return rule == EdgeCost::strength ? edge : 255;
                    return reference::luminanceDifference(picture.at(x, y), picture.at(againstX, againstY));
                };
                onEveryTarget([&] {
                    const auto costs = makeStepCosts(viewOf(picture), planeOf(edges, picture), rule);
                    const TiledLayout layout(w, h);
                    for (int y = 1; y < h - 1; ++y)
                        for (int x = 1; x < w - 1; ++x) {
                            const StepCosts found =
                                costs[layout.at(static_cast<std::size_t>(x), static_cast<std::size_t>(y))];
                            ASSERT_EQ(found.left, cost(x - 1, y, x, y, x - 1, y));
                            ASSERT_EQ(found.right, cost(x + 1, y, x, y, x + 1, y));
                            ASSERT_EQ(found.up, cost(x, y - 1, x, y, x, y - 1));
                            ASSERT_EQ(found.down, cost(x, y + 1, x, y, x + 1, y));
                        }
                });
            }
    }
}

TEST(TiledLayout, hasAPlaceForEachPixel)
{
    for (const auto &[width, height] :
         {std::pair(1, 1), std::pair(5, 7), std::pair(6, 8), std::pair(9, 9), std::pair(4, 33)}) {
        const TiledLayout layout(width, height);
        const auto w = static_cast<std::size_t>(width);
        const auto h = static_cast<std::size_t>(height);
        std::vector<bool> taken(layout.size());
        for (std::size_t y = 0; y < h; ++y)
            for (std::size_t x = 0; x < w; ++x) {
                const std::size_t i = layout.at(x, y);
                ASSERT_TRUE(i < layout.size() && !taken[i]);
                taken[i] = true;
                EXPECT_TRUE(x == 0 || layout.left(i) == layout.at(x - 1, y));
                EXPECT_TRUE(x + 1 == w || layout.right(i) == layout.at(x + 1, y));
                EXPECT_TRUE(y == 0 || layout.above(i) == layout.at(x, y - 1));
                EXPECT_TRUE(y + 1 == h || layout.below(i) == layout.at(x, y + 1));
            }
    }
}

template <typename Label> class Labels : public testing::Test
{
};
using LabelTypes = testing::Types<std::uint8_t, std::uint32_t>;
TYPED_TEST_SUITE(Labels, LabelTypes, );

TYPED_TEST(Labels, standForRegionsAndWatershedLines)
{
    using Label = TypeParam;
    const std::size_t regions = sizeof(Label) == 1 ? 8 : 40;
    EXPECT_FALSE(isRegion(Label{0}));
    std::vector<Label> all{0, watershedLine<Label>};
    for (std::size_t region = 1; region <= regions; ++region) {
        const Label label = labelOf<Label>(region);
        EXPECT_TRUE(isRegion(label));
        EXPECT_EQ(regionOf(label), region);
        EXPECT_EQ(joined(Label{0}, label), label);
        EXPECT_EQ(joined(label, label), label);
        EXPECT_TRUE(isWatershedLine(joined(watershedLine<Label>, label)));
        for (std::size_t other = 1; other < region; ++other) {
            EXPECT_TRUE(isWatershedLine(joined(label, labelOf<Label>(other))));
            EXPECT_TRUE(isWatershedLine(joined(joined(label, labelOf<Label>(other)), label)));
        }
        all.insert(all.end(), region * 5, label);
        all.push_back(0);
    }
    std::vector<Label> rebuilt(all.size(), 0);
    forEachRun(all, [&](std::size_t begin, std::size_t end, std::size_t region) {
        std::fill(rebuilt.begin() + static_cast<std::ptrdiff_t>(begin),
                  rebuilt.begin() + static_cast<std::ptrdiff_t>(end), labelOf<Label>(region));
    });
    rebuilt[1] = watershedLine<Label>;
    EXPECT_EQ(rebuilt, all);
}

TYPED_TEST(Labels, planesCountAndListTheirRegions)
{
    using Label = TypeParam;
    LabelPlane<Label> plane(13, 21);
    for (std::size_t y = 0; y < 21; ++y)
        for (std::size_t x = 0; x < 13; ++x)
            plane.labels[plane.layout.at(x, y)] = labelOf<Label>((y * 13 + x) / 40 + 1);
    EXPECT_EQ(plane.regionSizes(7), std::vector<std::size_t>({40, 40, 40, 40, 40, 40, 33}));
    std::size_t next = 0;
    plane.forEachPixelRun([&](std::size_t begin, std::size_t end, std::size_t region) {
        EXPECT_EQ(begin, next);
        EXPECT_EQ(begin / 40 + 1, region);
        EXPECT_EQ((end - 1) / 40 + 1, region);
        next = end;
    });
    EXPECT_EQ(next, std::size_t{13 * 21});
}
