// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "segmentation/LevelQueues.h"

#include <QImage>
#include <QProgressBar>

#include <cstddef>
#include <cstdint>
#include <vector>

/// \file
/// The flooding under FrWatershed() and FrWatershedMany(). Not part of the library's interface.
namespace flooding {

/// What a pixel costs where the edge map is not 0.
enum class EdgeCost {
    strength, ///< the value of the edge map
    highest   ///< 255, whatever the value
};

/// Writes, for the pixels of one row, how much their brightness differs from the right-hand neighbour (0 for
/// the last one) and from the pixel above (0 where `above` is null).
void colourDifferences(const std::uint8_t *row, const std::uint8_t *above, int width, std::uint8_t *toRight,
                       std::uint8_t *toAbove);

/// A picture being flooded. `Word` holds all that the flooding has to know of a pixel, so that a visit costs
/// one access to memory: the edge cost, both colour differences and, in what is left of it, the label.
template <typename Word> class Flooding
{
public:
    /// The largest number of regions that the labels have room for.
    static constexpr std::uint64_t mostRegions = (Word{} - Word{1} >> 24) - 2;

    Flooding(const QImage &image, const std::uint8_t *edges, EdgeCost rule)
        : m_width(image.width()),
          m_height(image.height()),
          m_words(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height))
    {
        prepare(image, edges, rule);
    }

    /// Labels pixels as belonging to `region`, 1 .. mostRegions. A later call wins; indices off the picture
    /// are passed over.
    template <typename Indices> void seed(const Indices &indices, Word region)
    {
        for (const int index : indices)
            if (static_cast<std::size_t>(index) < m_words.size()) // a negative index turns into a huge one
                setLabel(static_cast<std::size_t>(index), region);
    }

    /// Floods from the seeds. False when there was no pixel to flood.
    bool run(QProgressBar *progress)
    {
        if (m_width < 3 || m_height < 3)
            return false;
        setBarriers();
        queueFront();
        if (m_queues.empty())
            return false;
        flood(progress);
        return true;
    }

    /// Number of pixels of the regions 1 .. regions, at [region - 1].
    [[nodiscard]] std::vector<std::size_t> sizes(std::size_t regions) const
    {
        std::vector<std::size_t> counts(regions);
        forEachLabelled([&](int, Word region) { ++counts[static_cast<std::size_t>(region) - 1]; });
        return counts;
    }

    /// Calls visit(index, region) for the pixels that belong to a region, in increasing index order.
    template <typename Visit> void forEachLabelled(Visit visit) const
    {
        for (std::size_t i = 0; i < m_words.size(); ++i) {
            const Word region = label(m_words[i]);
            if (isRegion(region))
                visit(static_cast<int>(i), region);
        }
    }

private:
    static constexpr int toRightShift = 8;
    static constexpr int toAboveShift = 16;
    static constexpr int labelShift = 24;
    static constexpr Word belowLabel = (Word{1} << labelShift) - 1;
    static constexpr Word barrier = (Word{} - Word{1}) >> labelShift; // frame or meeting line
    static constexpr Word queued = barrier - 1;
    static constexpr std::uint64_t popsBetweenReports = 10000;

    static Word label(Word word) { return word >> labelShift; }
    static bool isRegion(Word label) { return label - 1 < queued - 1; }
    static unsigned edgeCost(Word word) { return static_cast<unsigned>(word & 0xFF); }
    static unsigned toRight(Word word) { return static_cast<unsigned>(word >> toRightShift & 0xFF); }
    static unsigned toAbove(Word word) { return static_cast<unsigned>(word >> toAboveShift & 0xFF); }
    void setLabel(std::size_t i, Word value) { m_words[i] = (m_words[i] & belowLabel) | value << labelShift; }

    void prepare(const QImage &image, const std::uint8_t *edges, EdgeCost rule)
    {
        const auto width = static_cast<std::size_t>(m_width);
        std::vector<std::uint8_t> right(width);
        std::vector<std::uint8_t> up(width);
        const std::uint8_t *above = nullptr;
        for (int y = 0; y < m_height; ++y) {
            const std::uint8_t *row = image.constScanLine(y);
            colourDifferences(row, above, m_width, right.data(), up.data());
            Word *words = m_words.data() + static_cast<std::size_t>(y) * width;
            const std::uint8_t *cost = edges + static_cast<std::size_t>(y) * width;
            for (std::size_t x = 0; x < width; ++x) {
                const Word edge = rule == EdgeCost::strength || cost[x] == 0 ? Word{cost[x]} : Word{255};
                words[x] = edge | Word{right[x]} << toRightShift | Word{up[x]} << toAboveShift;
            }
            above = row;
        }
    }

    void setBarriers()
    {
        const auto width = static_cast<std::size_t>(m_width);
        const std::size_t last = m_words.size() - width;
        for (std::size_t x = 0; x < width; ++x) {
            setLabel(x, barrier);
            setLabel(last + x, barrier);
        }
        for (std::size_t i = 0; i < m_words.size(); i += width) {
            setLabel(i, barrier);
            setLabel(i + width - 1, barrier);
        }
    }

    /// Queues the pixels next to a seed, each at the price of its cheapest seeded neighbour.
    void queueFront()
    {
        const auto width = static_cast<std::size_t>(m_width);
        for (int y = 1; y < m_height - 1; ++y) {
            const std::size_t begin = static_cast<std::size_t>(y) * width + 1;
            for (std::size_t i = begin; i < begin + width - 2; ++i)
                if (label(m_words[i]) == 0)
                    queueIfNextToSeed(i);
        }
    }

    void queueIfNextToSeed(std::size_t i)
    {
        constexpr unsigned none = 256;
        const auto width = static_cast<std::size_t>(m_width);
        unsigned cost = none;
        const auto consider = [&](std::size_t neighbour, unsigned difference) {
            if (isRegion(label(m_words[neighbour])) && difference < cost)
                cost = difference;
        };
        consider(i - 1, toRight(m_words[i - 1]));
        consider(i + 1, toRight(m_words[i]));
        consider(i - width, toAbove(m_words[i]));
        consider(i + width, toAbove(m_words[i + width]));
        if (cost == none)
            return;
        const unsigned edge = edgeCost(m_words[i]);
        enqueue(i, edge != 0 ? edge : cost);
    }

    void enqueue(std::size_t i, unsigned cost)
    {
        m_words[i] |= queued << labelShift;
        m_queues.push(cost, static_cast<std::uint32_t>(i));
    }

    void flood(QProgressBar *progress)
    {
        const auto width = static_cast<std::size_t>(m_width);
        std::uint64_t pops = 0;
        while (!m_queues.empty()) {
            if (++pops % popsBetweenReports == 0 && progress != nullptr)
                progress->setValue(static_cast<int>(pops * 100 / m_words.size()));
            const std::size_t i = m_queues.pop(m_queues.lowest());
            const Word region = meetingLabel(i, width);
            setLabel(i, region);
            if (region != barrier)
                enqueueNeighbours(i, width);
        }
    }

    /// The one region among the four neighbours of a queued pixel, or a barrier where two of them meet.
    Word meetingLabel(std::size_t i, std::size_t width) const
    {
        Word found = 0;
        for (const std::size_t neighbour : {i - 1, i + 1, i - width, i + width}) {
            const Word region = label(m_words[neighbour]);
            if (!isRegion(region) || region == found)
                continue;
            if (found != 0)
                return barrier;
            found = region;
        }
        return found;
    }

    void enqueueNeighbours(std::size_t i, std::size_t width)
    {
        const auto enqueueFrom = [this](std::size_t neighbour, unsigned difference) {
            const Word word = m_words[neighbour];
            if (label(word) == 0)
                enqueue(neighbour, edgeCost(word) != 0 ? edgeCost(word) : difference);
        };
        const Word here = m_words[i];
        enqueueFrom(i - 1, toRight(m_words[i - 1]));
        enqueueFrom(i + 1, toRight(here));
        enqueueFrom(i - width, toAbove(here));
        // The step down is priced with the horizontal difference. It looks like a slip, but regions
        // that were cut out before must come out the same, so it stays.
        enqueueFrom(i + width, toRight(here));
    }

    int m_width;
    int m_height;
    std::vector<Word> m_words;
    LevelQueues m_queues;
};

} // namespace flooding
