// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

/// Not part of the library's interface.
namespace ornevo::flooding {

/// The tiled layout of the flooding's planes: where they keep the pixel (x, y). A tile is eight rows high and
/// one pixel wide, tiles follow each other along a row of tiles, and rows of tiles from top to bottom. A
/// flooding spreads to all sides, so that the pixels of one neighbourhood had better share cache lines and
/// pages; in plain rows each row of it lies in a page of its own, and on large pictures half the time goes
/// into finding those.
///
/// The last row of tiles is as long as the others, whether or not it has pixels for all its places.
class TiledLayout
{
public:
    static constexpr std::size_t rows = 8;

    TiledLayout(int width, int height)
        : m_length(static_cast<std::size_t>(width) * rows),
          m_size((static_cast<std::size_t>(height) + rows - 1) / rows * m_length)
    {
    }

    /// Number of places of a row of tiles.
    [[nodiscard]] std::size_t length() const { return m_length; }
    /// Number of all places.
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
    /// A place in that row of tiles, of the ones above and below, which is the nearer to `i`. It may lie off
    /// the planes.
    [[nodiscard]] std::size_t inNearestTile(std::size_t i) const
    {
        return i % rows < rows / 2 ? i - m_length : i + m_length;
    }

private:
    std::size_t m_length;
    std::size_t m_size;
};

} // namespace ornevo::flooding
