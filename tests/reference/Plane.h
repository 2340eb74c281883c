// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace reference {

/// One value a pixel, rows from top to bottom without padding.
template <typename T> struct PlaneOf
{
    int width = 0;
    int height = 0;
    std::vector<T> data;

    PlaneOf() = default;
    PlaneOf(int planeWidth, int planeHeight, T value = T())
        : width(planeWidth),
          height(planeHeight),
          data(static_cast<std::size_t>(planeWidth) * static_cast<std::size_t>(planeHeight), value)
    {
    }

    /// A coordinate outside the plane throws, so that a reference never reads
    /// beyond its picture unnoticed.
    T &at(int x, int y) { return data.at(index(x, y)); }
    const T &at(int x, int y) const { return data.at(index(x, y)); }

    bool operator==(const PlaneOf &other) const
    {
        return width == other.width && height == other.height && data == other.data;
    }

private:
    std::size_t index(int x, int y) const
    {
        if (x < 0 || x >= width || y < 0 || y >= height)
            return data.size();
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
    }
};

using Plane = PlaneOf<std::uint8_t>;

/// A picture: 0xAARRGGBB a pixel, in memory blue, green, red and one more byte.
using Picture = PlaneOf<std::uint32_t>;

/// Byte `channel` of a pixel, 0 blue .. 3 alpha.
inline int channelOf(std::uint32_t pixel, int channel)
{
    return static_cast<int>(pixel >> (8 * channel) & 0xffU);
}

} // namespace reference
