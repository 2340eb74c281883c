// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

/// Not part of the library's interface.
namespace flooding {

/// Where the planes of the flooding keep the pixel (x, y): in strips of eight rows, and in a strip column
/// after column. A flooding spreads to all sides, so that the pixels of one neighbourhood had better share
/// cache lines and pages; in plain rows each row of it lies in a page of its own, and on large pictures half
/// the time goes into finding those.
///
/// The last strip is as long as the others, whether or not it has pixels for all its rows.
class Strips
{
public:
    static constexpr std::size_t rows = 8;

    Strips(int width, int height)
        : m_length(static_cast<std::size_t>(width) * rows),
          m_size((static_cast<std::size_t>(height) + rows - 1) / rows * m_length)
    {
    }

    /// Number of places of a strip.
    [[nodiscard]] std::size_t length() const { return m_length; }
    /// Number of places of all strips.
    [[nodiscard]] std::size_t size() const { return m_size; }

    [[nodiscard]] std::size_t at(std::size_t x, std::size_t y) const
    {
        return y / rows * m_length + x * rows + y % rows;
    }

    // The neighbours of a place. There must be one.
    [[nodiscard]] std::size_t left(std::size_t i) const { return i - rows; }
    [[nodiscard]] std::size_t right(std::size_t i) const { return i + rows; }
    [[nodiscard]] std::size_t above(std::size_t i) const
    {
        return i % rows == 0 ? i - m_length + (rows - 1) : i - 1;
    }
    [[nodiscard]] std::size_t below(std::size_t i) const
    {
        return i % rows == rows - 1 ? i + m_length - (rows - 1) : i + 1;
    }
    /// A place in the strip that is the nearer one of both beside the strip of `i`. It may lie off the
    /// planes.
    [[nodiscard]] std::size_t inNearestStrip(std::size_t i) const
    {
        return i % rows < rows / 2 ? i - m_length : i + m_length;
    }

private:
    std::size_t m_length;
    std::size_t m_size;
};

} // namespace flooding
