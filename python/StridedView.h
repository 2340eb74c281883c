// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>

namespace ornevo::python {

/// The memory of an array of two or three dimensions, whatever its strides, which are in bytes: they may be
/// negative or 0, and elements need no alignment.
struct StridedView
{
    const std::uint8_t *data = nullptr;
    int width = 0;
    int height = 0;
    int channels = 1;
    std::ptrdiff_t rowStride = 0;
    std::ptrdiff_t columnStride = 0;
    std::ptrdiff_t channelStride = 0;

    [[nodiscard]] const std::uint8_t *row(int y) const { return data + y * rowStride; }
    [[nodiscard]] std::size_t pixels() const
    {
        return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    }
    /// Whether pixels of `bytes` bytes lie side by side in rows that don't overlap.
    [[nodiscard]] bool isPacked(std::ptrdiff_t bytes) const
    {
        return (channels == 1 || channelStride == 1) && (width <= 1 || columnStride == bytes) &&
               (height <= 1 || rowStride >= bytes * width);
    }
};

} // namespace ornevo::python
