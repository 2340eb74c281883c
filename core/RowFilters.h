// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// \file
/// The filters of the image library, a row at a time: inner loops without a branch on position, so that whole
/// planes, line buffers and single rows share them. Not part of the library's interface.
namespace ornevo::rowfilters {

/// Half of a symmetric kernel: the weight of the centre, then of the offsets 1 .. radius on both sides.
using HalfKernel = std::span<const double>;

/// A few consecutive rows of a picture, addressed by their row number; an old row gives way to a new one.
/// Each row begins on a cache line. They are a power of two: a division for every row asked
/// for would show.
template <typename T> class RowRing
{
public:
    RowRing(int width, int rows)
        : m_stride((static_cast<std::size_t>(width) + line - 1) / line * line),
          m_mask(std::bit_ceil(static_cast<std::size_t>(rows)) - 1),
          m_data(m_stride * (m_mask + 1) + line)
    {
        const std::size_t misplaced = reinterpret_cast<std::uintptr_t>(m_data.data()) / sizeof(T) % line;
        m_first = (line - misplaced) % line;
    }
    T *row(int y) { return m_data.data() + m_first + (static_cast<std::size_t>(y) & m_mask) * m_stride; }

private:
    static constexpr std::size_t line = 64 / sizeof(T);

    std::size_t m_stride;
    std::size_t m_first = 0;
    std::size_t m_mask;
    std::vector<T> m_data;
};

/// Horizontal pass over `in`: centre first, then the pairs outward. Writes out[radius .. width - radius - 1].
void smoothRow(const std::uint8_t *in, int width, HalfKernel half, double *out);

/// Vertical pass for the columns `from` .. `to` - 1 of row `y`, truncated to a byte after the centre and
/// after every pair. `rows` holds what smoothRow() made of the rows y - radius .. y + radius.
void truncateAtEachTap(RowRing<double> &rows, int y, HalfKernel half, int from, int to, std::uint8_t *out);

/// The same, summed in doubles and truncated once.
void truncateOnce(RowRing<double> &rows, int y, HalfKernel half, int from, int to, std::uint8_t *out);

/// Low byte of the truncated Sobel gradient magnitude of the middle row; the first and last column become 0.
void sobelMagnitudeRow(const std::uint8_t *above, const std::uint8_t *mid, const std::uint8_t *below,
                       int width, std::uint8_t *out);

} // namespace ornevo::rowfilters
