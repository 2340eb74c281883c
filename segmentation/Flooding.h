// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "segmentation/LevelQueues.h"
#include "segmentation/Marks.h"
#include "segmentation/StepCosts.h"

#include <QImage>
#include <QProgressBar>

#include <hwy/cache_control.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

/// \file
/// The flooding under FrWatershed() and FrWatershedMany(). Not part of the library's interface.
namespace flooding {

/// A picture being flooded: seed() for each region, then run() once, then marks().
///
/// What makes it fast:
/// - The prices of all steps are worked out ahead, row by row and many pixels at a time, so that the flooding
///   itself, which jumps about, never looks at a colour.
/// - A pixel that is reached puts its region's mark into its four neighbours at once, see Marks.h. When its
///   own turn comes, a pixel knows its region, or that two met, from its own mark.
/// - The pixels of a neighbourhood lie close together in memory, see Strips.h, and the queue tells which ones
///   come next, so that they are fetched in time.
/// - A level is served from registers until a lower one is filled.
template <typename Mark> class Flooding
{
public:
    /// `image` and `edges` must outlive the object.
    Flooding(const QImage &image, const std::uint8_t *edges, EdgeCost rule)
        : m_image(image),
          m_edges(edges),
          m_rule(rule),
          m_plane(image.width(), image.height()),
          m_pixels(m_plane.width * m_plane.height),
          m_nearSeeds(m_pixels / stretch + 1),
          m_queues(0)
    {
    }

    /// Labels pixels as belonging to `region`, 1 .. mostRegions<Mark>. A later call wins; indices off the
    /// picture are passed over.
    template <typename Indices> void seed(const Indices &indices, std::size_t region)
    {
        const Mark mark = markOf<Mark>(region);
        for (const int index : indices) {
            const auto i = static_cast<std::size_t>(index);
            if (i >= m_pixels) // a negative index turned into a huge one
                continue;
            m_plane.marks[placeOf(i)] = mark;
            for (const std::size_t neighbour : {i - 1, i + 1, i - m_plane.width, i + m_plane.width})
                if (neighbour < m_pixels)
                    m_nearSeeds[neighbour / stretch] = 1;
        }
    }

    /// Floods from the seeds; to be called once. False when there was no pixel to flood. `progress` may be
    /// null. Throws std::bad_alloc.
    bool run(QProgressBar *progress)
    {
        if (m_image.width() < 3 || m_image.height() < 3)
            return false;
        setFrame();
        queueFront();
        if (m_queues.empty())
            return false;
        m_costs = makeStepCosts(m_image, m_edges, m_rule);
        while (!m_queues.empty())
            serve(m_queues.lowest(), progress);
        return true;
    }

    [[nodiscard]] const MarkPlane<Mark> &marks() const { return m_plane; }

private:
    /// Pixels that share a flag of m_nearSeeds.
    static constexpr std::size_t stretch = 64;
    static constexpr int popsBetweenReports = 10000;

    /// Where the planes keep the pixel of an index y * width + x.
    [[nodiscard]] std::size_t placeOf(std::size_t pixel) const
    {
        return m_plane.strips.at(pixel % m_plane.width, pixel / m_plane.width);
    }

    void setFrame()
    {
        for (std::size_t x = 0; x < m_plane.width; ++x)
            for (const std::size_t y : {std::size_t{0}, m_plane.height - 1})
                m_plane.marks[m_plane.strips.at(x, y)] = meeting<Mark>;
        for (std::size_t y = 0; y < m_plane.height; ++y)
            for (const std::size_t x : {std::size_t{0}, m_plane.width - 1})
                m_plane.marks[m_plane.strips.at(x, y)] = meeting<Mark>;
    }

    /// Queues the pixels next to a seed in index order. Only the stretches that a seed touches are searched:
    /// the seeds cover little of a picture.
    void queueFront()
    {
        std::vector<std::pair<std::size_t, Mark>> front;
        for (std::size_t s = 0; s < m_nearSeeds.size(); ++s) {
            if (m_nearSeeds[s] == 0)
                continue;
            const std::size_t end = std::min(m_pixels, (s + 1) * stretch);
            for (std::size_t pixel = s * stretch; pixel < end; ++pixel)
                if (const std::size_t i = placeOf(pixel); m_plane.marks[i] == 0)
                    if (const Mark mark = queueIfNextToSeed(pixel, i); mark != 0)
                        front.emplace_back(i, mark);
        }
        // Not before all are found: a pixel of the front is no seed to the ones behind it.
        for (const auto &[i, mark] : front)
            m_plane.marks[i] = mark;
    }

    /// Queues a pixel, kept at `i`, at the price of its cheapest seeded neighbour. Returns the mark that the
    /// seeds leave in it.
    Mark queueIfNextToSeed(std::size_t pixel, std::size_t i)
    {
        const std::uint8_t *const here = colour(pixel);
        const std::ptrdiff_t toBelow = m_image.bytesPerLine();
        Mark mark = 0;
        std::uint8_t difference = 255;
        const auto consider = [&](std::size_t neighbour, std::ptrdiff_t step) {
            const Mark seed = m_plane.marks[neighbour];
            if (!isRegion(seed))
                return;
            mark = joined(mark, seed);
            difference = std::min(difference, brightnessDifference(here, here + step));
        };
        consider(m_plane.strips.left(i), -4);
        consider(m_plane.strips.right(i), 4);
        consider(m_plane.strips.above(i), -toBelow);
        consider(m_plane.strips.below(i), toBelow);
        if (mark != 0)
            m_queues.push(pixelCost(m_edges[pixel], difference, m_rule), static_cast<std::uint32_t>(i));
        return mark;
    }

    [[nodiscard]] const std::uint8_t *colour(std::size_t pixel) const
    {
        return m_image.constScanLine(static_cast<int>(pixel / m_plane.width)) + 4 * (pixel % m_plane.width);
    }

    /// Serves a level until it is empty or a lower one is filled. Everything that the loop needs is held in
    /// local variables: the marks are written as bytes, which the compiler must expect to change any member.
    void serve(const unsigned level, QProgressBar *progress)
    {
        const Strips strips = m_plane.strips;
        Mark *const marks = m_plane.marks.data();
        const StepCosts *const costs = m_costs.get();
        LevelQueues::Service queue(m_queues, level);
        unsigned lowest = level;
        while (lowest == level && queue.more()) {
            fetchAround(queue.ahead(), marks, costs, strips);
            const std::size_t i = queue.take();
            if (--m_popsToReport == 0) [[unlikely]]
                report(progress);
            const Mark mark = marks[i];
            if (isMeeting(mark)) [[unlikely]]
                continue;
            // Branches, though half of them are guessed wrong: without them the place of each entry waits for
            // the marks before it, the entries taken next wait for the place, and that is slower still.
            const auto reach = [&](std::size_t neighbour, const std::uint8_t &cost) {
                const Mark before = marks[neighbour];
                marks[neighbour] = joined(before, mark);
                if (before != 0)
                    return;
                if (cost == level) {
                    queue.push(static_cast<std::uint32_t>(neighbour));
                } else {
                    m_queues.push(cost, static_cast<std::uint32_t>(neighbour));
                    lowest = std::min<unsigned>(lowest, cost);
                }
            };
            queue.makeRoom();
            // This order decides ties. The same four neighbours: seed(), queueIfNextToSeed(), StepCosts.
            reach(strips.left(i), costs[i].left);
            reach(strips.right(i), costs[i].right);
            reach(strips.above(i), costs[i].up);
            reach(strips.below(i), costs[i].down);
        }
        queue.close();
    }

    static void fetchAround(std::size_t i, const Mark *marks, const StepCosts *costs, const Strips &strips)
    {
        hwy::Prefetch(costs + i);
        hwy::Prefetch(marks + i);
        // Of an entry on the first or the last strip, that may be a place beside the planes.
        const std::size_t beside = strips.inNearestStrip(i);
        if (beside < strips.size()) {
            hwy::Prefetch(costs + beside);
            hwy::Prefetch(marks + beside);
        }
    }

    void report(QProgressBar *progress)
    {
        m_popsToReport = popsBetweenReports;
        m_pops += popsBetweenReports;
        if (progress != nullptr)
            progress->setValue(static_cast<int>(m_pops * 100 / m_pixels));
    }

    const QImage &m_image;
    const std::uint8_t *m_edges;
    EdgeCost m_rule;
    MarkPlane<Mark> m_plane;
    std::size_t m_pixels;
    std::vector<std::uint8_t> m_nearSeeds; ///< for each stretch, whether it holds a neighbour of a seed
    LargeArray<StepCosts> m_costs;
    LevelQueues m_queues;
    std::uint64_t m_pops = 0;
    int m_popsToReport = popsBetweenReports;
};

} // namespace flooding
