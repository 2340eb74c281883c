// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/LabelPlane.h"
#include "core/LevelQueues.h"
#include "core/Progress.h"
#include "core/StepCosts.h"
#include "core/Views.h"

#include <hwy/cache_control.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

/// \file
/// The flooding under floodTwoRegions() and floodRegions(). Not part of the library's interface.
namespace ornevo::flooding {

/// A picture being flooded: seed() for each region, then run() once, then takeLabels().
///
/// What makes it fast:
/// - The costs of all steps are worked out ahead, row by row and many pixels at a time, so that the flooding
///   itself, which jumps about, never looks at a colour.
/// - A pixel that is reached puts its region's label into its four neighbours at once, see LabelPlane.h. When
///   its own turn comes, a pixel knows its region, or that it lies on a watershed line, from its own label.
/// - The pixels of a neighbourhood lie close together in memory, see TiledLayout.h, and the queue knows which
///   ones come next, so that they are fetched in time.
/// - A level is drained from registers until a lower one is filled.
template <typename Label> class Flooding
{
public:
    Flooding(const PictureView &picture, const PlaneView &edges, EdgeCost rule)
        : m_picture(picture),
          m_edges(edges),
          m_rule(rule),
          m_plane(picture.width, picture.height),
          m_pixels(m_plane.width * m_plane.height),
          m_nearSeeds(m_pixels / block + 1),
          m_queues(0)
    {
    }

    /// Labels pixels as belonging to `region`, 1 .. mostRegions<Label>. A later call wins; indices off
    /// the picture are ignored.
    void seed(const PixelIndices &indices, std::size_t region)
    {
        const Label label = labelOf<Label>(region);
        for (const int index : indices) {
            const auto i = static_cast<std::size_t>(index);
            if (i >= m_pixels) // a negative index turned into a huge one
                continue;
            m_plane.labels[placeOf(i)] = label;
            for (const std::size_t neighbour : {i - 1, i + 1, i - m_plane.width, i + m_plane.width})
                if (neighbour < m_pixels)
                    m_nearSeeds[neighbour / block] = 1;
        }
    }

    /// Floods from the seeds; to be called once. False when there was no pixel to flood. Throws
    /// std::bad_alloc, and what `progress` throws.
    bool run(const ProgressCallback &progress)
    {
        if (m_picture.width < 3 || m_picture.height < 3)
            return false;
        setFrame();
        queueFront();
        if (m_queues.empty())
            return false;
        m_costs = makeStepCosts(m_picture, m_edges, m_rule);
        while (!m_queues.empty())
            drain(m_queues.lowest(), progress);
        return true;
    }

    [[nodiscard]] LabelPlane<Label> takeLabels() { return std::move(m_plane); }

private:
    /// Pixels that share a flag of m_nearSeeds.
    static constexpr std::size_t block = 64;
    static constexpr int popsBetweenReports = 10000;

    /// Where the planes keep the pixel of an index y * width + x.
    [[nodiscard]] std::size_t placeOf(std::size_t pixel) const
    {
        return m_plane.layout.at(pixel % m_plane.width, pixel / m_plane.width);
    }

    void setFrame()
    {
        for (std::size_t x = 0; x < m_plane.width; ++x)
            for (const std::size_t y : {std::size_t{0}, m_plane.height - 1})
                m_plane.labels[m_plane.layout.at(x, y)] = watershedLine<Label>;
        for (std::size_t y = 0; y < m_plane.height; ++y)
            for (const std::size_t x : {std::size_t{0}, m_plane.width - 1})
                m_plane.labels[m_plane.layout.at(x, y)] = watershedLine<Label>;
    }

    /// Queues the pixels next to a seed in index order. Only the blocks that a seed touches are searched:
    /// the seeds cover little of a picture.
    void queueFront()
    {
        std::vector<std::pair<std::size_t, Label>> front;
        for (std::size_t s = 0; s < m_nearSeeds.size(); ++s) {
            if (m_nearSeeds[s] == 0)
                continue;
            const std::size_t end = std::min(m_pixels, (s + 1) * block);
            for (std::size_t pixel = s * block; pixel < end; ++pixel)
                if (const std::size_t i = placeOf(pixel); m_plane.labels[i] == 0)
                    if (const Label label = queueIfNextToSeed(pixel, i); label != 0)
                        front.emplace_back(i, label);
        }
        // Not before all are found: a pixel of the front is no seed to the ones behind it.
        for (const auto &[i, label] : front)
            m_plane.labels[i] = label;
    }

    /// Queues a pixel, kept at `i`, at the cost of its cheapest seeded neighbour. Returns the label that the
    /// seeds leave in it.
    Label queueIfNextToSeed(std::size_t pixel, std::size_t i)
    {
        const std::uint8_t *const here = colour(pixel);
        const std::ptrdiff_t toBelow = m_picture.bytesPerRow;
        Label label = 0;
        std::uint8_t difference = 255;
        const auto consider = [&](std::size_t neighbour, std::ptrdiff_t step) {
            const Label seed = m_plane.labels[neighbour];
            if (!isRegion(seed))
                return;
            label = joined(label, seed);
            difference = std::min(difference, brightnessDifference(here, here + step));
        };
        consider(m_plane.layout.left(i), -4);
        consider(m_plane.layout.right(i), 4);
        consider(m_plane.layout.above(i), -toBelow);
        consider(m_plane.layout.below(i), toBelow);
        if (label != 0)
            m_queues.push(pixelCost(edge(pixel), difference, m_rule), static_cast<std::uint32_t>(i));
        return label;
    }

    [[nodiscard]] const std::uint8_t *colour(std::size_t pixel) const
    {
        return m_picture.row(static_cast<int>(pixel / m_plane.width)) + 4 * (pixel % m_plane.width);
    }

    [[nodiscard]] std::uint8_t edge(std::size_t pixel) const
    {
        return m_edges.row(static_cast<int>(pixel / m_plane.width))[pixel % m_plane.width];
    }

    /// Drains a level until it is empty or a lower one is filled. Everything that the loop needs is held in
    /// local variables: the labels are written as bytes, which the compiler must expect to change any member.
    void drain(const unsigned level, const ProgressCallback &progress)
    {
        const TiledLayout layout = m_plane.layout;
        Label *const labels = m_plane.labels.data();
        const StepCosts *const costs = m_costs.get();
        LevelQueues::Drain queue(m_queues, level);
        unsigned lowest = level;
        while (lowest == level && queue.more()) {
            fetchAround(queue.ahead(), labels, costs, layout);
            const std::size_t i = queue.take();
            if (--m_popsToReport == 0) [[unlikely]]
                report(progress);
            const Label label = labels[i];
            if (isWatershedLine(label)) [[unlikely]]
                continue;
            // Branches, though half of them are guessed wrong: without them the place of each entry waits for
            // the labels before it, the entries taken next wait for the place, and that is slower still.
            const auto reach = [&](std::size_t neighbour, const std::uint8_t &cost) {
                const Label before = labels[neighbour];
                labels[neighbour] = joined(before, label);
                if (before != 0)
                    return;
                if (cost == level) {
                    queue.push(static_cast<std::uint32_t>(neighbour));
                } else {
                    m_queues.push(cost, static_cast<std::uint32_t>(neighbour));
                    lowest = std::min<unsigned>(lowest, cost);
                }
            };
            queue.reserve();
            // This order decides ties: promised, see docs/compatibility.md. The same four neighbours: seed(),
            // queueIfNextToSeed(), StepCosts.
            reach(layout.left(i), costs[i].left);
            reach(layout.right(i), costs[i].right);
            reach(layout.above(i), costs[i].up);
            reach(layout.below(i), costs[i].down);
        }
        queue.close();
    }

    static void fetchAround(std::size_t i, const Label *labels, const StepCosts *costs,
                            const TiledLayout &layout)
    {
        hwy::Prefetch(costs + i);
        hwy::Prefetch(labels + i);
        // Of an entry in the first or the last row of tiles, that may be a place beside the planes.
        const std::size_t beside = layout.inNearestTile(i);
        if (beside < layout.size()) {
            hwy::Prefetch(costs + beside);
            hwy::Prefetch(labels + beside);
        }
    }

    void report(const ProgressCallback &progress)
    {
        m_popsToReport = popsBetweenReports;
        m_pops += popsBetweenReports;
        if (progress)
            progress(static_cast<int>(m_pops * 100 / m_pixels));
    }

    PictureView m_picture;
    PlaneView m_edges;
    EdgeCost m_rule;
    LabelPlane<Label> m_plane;
    std::size_t m_pixels;
    std::vector<std::uint8_t> m_nearSeeds; ///< for each block, whether it holds a neighbour of a seed
    LargeArray<StepCosts> m_costs;
    LevelQueues m_queues;
    std::uint64_t m_pops = 0;
    int m_popsToReport = popsBetweenReports;
};

} // namespace ornevo::flooding
