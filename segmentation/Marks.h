// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imaging/LargeMemory.h"
#include "segmentation/Strips.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

/// \file
/// The marks that the flooding puts into pixels. Not part of the library's interface.
///
/// A mark is 0 in a pixel that nothing has reached, stands for one region, or says that several met there. A
/// pixel gets the mark of each neighbour that becomes part of a region, joined to what it holds already. That
/// is enough to decide on it when its turn comes, and does not hurt afterwards: a pixel only becomes part of
/// a region when all its neighbours in regions are of the same one, so that what it puts into them is what
/// they hold; and where several met, it stays so.
///
/// The frame of the picture counts as a meeting.
namespace flooding {

/// Up to eight regions take one bit each of a byte, so that joining is a plain OR: several bits are a
/// meeting. More regions are numbered in 32 bits.
template <typename Mark> inline constexpr Mark meeting = static_cast<Mark>(~Mark{0});
template <typename Mark> inline constexpr std::size_t mostRegions = meeting<Mark> - 1;
template <> inline constexpr std::size_t mostRegions<std::uint8_t> = 8;

template <typename Mark> constexpr Mark markOf(std::size_t region)
{
    return static_cast<Mark>(region);
}
template <> constexpr std::uint8_t markOf<std::uint8_t>(std::size_t region)
{
    return static_cast<std::uint8_t>(1U << (region - 1));
}

constexpr bool isMeeting(std::uint8_t mark)
{
    return (mark & (mark - 1U)) != 0;
}
constexpr bool isMeeting(std::uint32_t mark)
{
    return mark == meeting<std::uint32_t>;
}

template <typename Mark> constexpr bool isRegion(Mark mark)
{
    return mark != 0 && !isMeeting(mark);
}

/// The region that a mark stands for.
constexpr std::size_t regionOf(std::uint8_t mark)
{
    return static_cast<std::size_t>(std::countr_zero(mark)) + 1;
}
constexpr std::size_t regionOf(std::uint32_t mark)
{
    return mark;
}

constexpr std::uint8_t joined(std::uint8_t a, std::uint8_t b)
{
    return a | b;
}
constexpr std::uint32_t joined(std::uint32_t a, std::uint32_t b)
{
    return a == 0 || a == b ? b : meeting<std::uint32_t>;
}

/// Calls visit(begin, end, region) for the runs of one region among the marks, in increasing order. Flooded
/// regions are broad: eight bytes of marks are compared at a time.
template <typename Marks, typename Visit> void forEachRun(const Marks &marks, Visit visit)
{
    using Mark = typename Marks::value_type;
    constexpr std::size_t step = 8 / sizeof(Mark);
    for (std::size_t begin = 0; begin < marks.size();) {
        const Mark mark = marks[begin];
        std::array<Mark, step> same;
        same.fill(mark);
        std::size_t end = begin + 1;
        while (end + step <= marks.size() && std::memcmp(&marks[end], same.data(), sizeof same) == 0)
            end += step;
        while (end < marks.size() && marks[end] == mark)
            ++end;
        if (isRegion(mark))
            visit(begin, end, regionOf(mark));
        begin = end;
    }
}

/// The marks of a whole picture.
template <typename Mark> struct MarkPlane
{
    std::size_t width;
    std::size_t height;
    Strips strips;
    std::vector<Mark, LargeAllocator<Mark>> marks; ///< laid out in strips

    MarkPlane(int w, int h)
        : width(static_cast<std::size_t>(w)),
          height(static_cast<std::size_t>(h)),
          strips(w, h),
          marks(strips.size())
    {
    }

    /// Number of pixels of the regions 1 .. regions, at [region - 1].
    [[nodiscard]] std::vector<std::size_t> regionSizes(std::size_t regions) const
    {
        std::vector<std::size_t> sizes(regions);
        forEachRun(marks, [&](std::size_t begin, std::size_t end, std::size_t region) {
            sizes[region - 1] += end - begin;
        });
        return sizes;
    }

    /// Calls visit(begin, end, region) for the runs of pixels y * width + x of one region, in increasing
    /// order.
    template <typename Visit> void forEachPixelRun(Visit visit) const
    {
        std::vector<Mark> row(width);
        for (std::size_t y = 0; y < height; ++y) {
            const Mark *const from = marks.data() + strips.at(0, y);
            for (std::size_t x = 0; x < width; ++x)
                row[x] = from[x * Strips::rows];
            forEachRun(row, [&](std::size_t begin, std::size_t end, std::size_t region) {
                visit(y * width + begin, y * width + end, region);
            });
        }
    }
};

} // namespace flooding
