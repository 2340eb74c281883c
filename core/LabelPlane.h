// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/LargeMemory.h"
#include "core/TiledLayout.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

/// \file
/// The labels that the flooding gives to pixels. Not part of the library's interface.
///
/// A label is 0 in a pixel that nothing has reached, stands for one region, or says that the pixel lies on a
/// watershed line. A pixel gets the label of each neighbour that becomes part of a region, joined to what it
/// holds already. That is enough to decide on it when its turn comes, and does not hurt afterwards: a pixel
/// only becomes part of a region when all its neighbours in regions are of the same one, so that what it puts
/// into them is what they hold; and a watershed line stays one.
///
/// The frame of the picture counts as a watershed line.
namespace ornevo::flooding {

/// Up to eight regions take one bit each of a byte, so that joining is a plain OR: several bits are a
/// watershed line. More regions are numbered in 32 bits.
template <typename Label> inline constexpr Label watershedLine = static_cast<Label>(~Label{0});
template <typename Label> inline constexpr std::size_t mostRegions = watershedLine<Label> - 1;
template <> inline constexpr std::size_t mostRegions<std::uint8_t> = 8;

template <typename Label> constexpr Label labelOf(std::size_t region)
{
    return static_cast<Label>(region);
}
template <> constexpr std::uint8_t labelOf<std::uint8_t>(std::size_t region)
{
    return static_cast<std::uint8_t>(1U << (region - 1));
}

constexpr bool isWatershedLine(std::uint8_t label)
{
    return (label & (label - 1U)) != 0;
}
constexpr bool isWatershedLine(std::uint32_t label)
{
    return label == watershedLine<std::uint32_t>;
}

template <typename Label> constexpr bool isRegion(Label label)
{
    return label != 0 && !isWatershedLine(label);
}

/// The region that a label stands for.
constexpr std::size_t regionOf(std::uint8_t label)
{
    return static_cast<std::size_t>(std::countr_zero(label)) + 1;
}
constexpr std::size_t regionOf(std::uint32_t label)
{
    return label;
}

constexpr std::uint8_t joined(std::uint8_t a, std::uint8_t b)
{
    return a | b;
}
constexpr std::uint32_t joined(std::uint32_t a, std::uint32_t b)
{
    return a == 0 || a == b ? b : watershedLine<std::uint32_t>;
}

/// Calls visit(begin, end, region) for the runs of one region among the labels, in increasing order. Flooded
/// regions are broad: eight bytes of labels are compared at a time.
template <typename Labels, typename Visit> void forEachRun(const Labels &labels, Visit visit)
{
    using Label = typename Labels::value_type;
    constexpr std::size_t step = 8 / sizeof(Label);
    for (std::size_t begin = 0; begin < labels.size();) {
        const Label label = labels[begin];
        std::array<Label, step> same;
        same.fill(label);
        std::size_t end = begin + 1;
        while (end + step <= labels.size() && std::memcmp(&labels[end], same.data(), sizeof same) == 0)
            end += step;
        while (end < labels.size() && labels[end] == label)
            ++end;
        if (isRegion(label))
            visit(begin, end, regionOf(label));
        begin = end;
    }
}

/// The labels of a whole picture.
template <typename Label> struct LabelPlane
{
    std::size_t width;
    std::size_t height;
    TiledLayout layout;
    std::vector<Label, LargeAllocator<Label>> labels; ///< in the tiled layout

    LabelPlane(int w, int h)
        : width(static_cast<std::size_t>(w)),
          height(static_cast<std::size_t>(h)),
          layout(w, h),
          labels(layout.size())
    {
    }

    /// Number of pixels of the regions 1 .. regions, at [region - 1].
    [[nodiscard]] std::vector<std::size_t> regionSizes(std::size_t regions) const
    {
        std::vector<std::size_t> sizes(regions);
        forEachRun(labels, [&](std::size_t begin, std::size_t end, std::size_t region) {
            sizes[region - 1] += end - begin;
        });
        return sizes;
    }

    /// Calls visit(begin, end, region) for the runs of pixels y * width + x of one region, in increasing
    /// order.
    template <typename Visit> void forEachPixelRun(Visit visit) const
    {
        std::vector<Label> row(width);
        for (std::size_t y = 0; y < height; ++y) {
            const Label *const from = labels.data() + layout.at(0, y);
            for (std::size_t x = 0; x < width; ++x)
                row[x] = from[x * TiledLayout::rows];
            forEachRun(row, [&](std::size_t begin, std::size_t end, std::size_t region) {
                visit(y * width + begin, y * width + end, region);
            });
        }
    }
};

} // namespace ornevo::flooding
