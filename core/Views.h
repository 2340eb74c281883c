// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

/// \file
/// How pixels are handed to this library: views of memory that the caller owns, cheap to copy. Rows run from
/// top to bottom, `bytesPerRow` bytes from the start of one to the start of the next; what lies between two
/// rows is neither read nor written. No alignment is asked for.
///
/// Every function checks its views before it does anything: a size below 0, rows that overlap, or a null
/// pointer where there are pixels throw std::invalid_argument, whose text begins with the name of the
/// argument at fault. A view without pixels may be null.
namespace ornevo {

/// Four bytes a pixel: blue, green, red, and one that only the functions look at which say so.
template <typename Byte> struct BasicPictureView
{
    Byte *pixels = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t bytesPerRow = 0; ///< at least 4 · width

    BasicPictureView() = default;
    BasicPictureView(Byte *pixels_, int width_, int height_, std::ptrdiff_t bytesPerRow_)
        : pixels(pixels_), width(width_), height(height_), bytesPerRow(bytesPerRow_)
    {
    }
    /// Rows without padding.
    BasicPictureView(Byte *pixels_, int width_, int height_)
        : BasicPictureView(pixels_, width_, height_, std::ptrdiff_t{4} * width_)
    {
    }
    /// What can be written can be read.
    template <typename Other, typename = std::enable_if_t<std::is_same_v<const Other, Byte>>>
    BasicPictureView(const BasicPictureView<Other> &other) // NOLINT(google-explicit-constructor)
        : BasicPictureView(other.pixels, other.width, other.height, other.bytesPerRow)
    {
    }

    [[nodiscard]] Byte *row(int y) const { return pixels + y * bytesPerRow; }
};

using PictureView = BasicPictureView<const std::uint8_t>;
using MutablePictureView = BasicPictureView<std::uint8_t>;

/// One byte a pixel; several, of as many channels, where a function takes them.
template <typename Byte> struct BasicPlaneView
{
    Byte *bytes = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t bytesPerRow = 0; ///< at least width · channels
    int channels = 1;               ///< interleaved bytes of a pixel

    BasicPlaneView() = default;
    BasicPlaneView(Byte *bytes_, int width_, int height_, std::ptrdiff_t bytesPerRow_, int channels_ = 1)
        : bytes(bytes_), width(width_), height(height_), bytesPerRow(bytesPerRow_), channels(channels_)
    {
    }
    /// Rows without padding.
    BasicPlaneView(Byte *bytes_, int width_, int height_) : BasicPlaneView(bytes_, width_, height_, width_) {}
    template <typename Other, typename = std::enable_if_t<std::is_same_v<const Other, Byte>>>
    BasicPlaneView(const BasicPlaneView<Other> &other) // NOLINT(google-explicit-constructor)
        : BasicPlaneView(other.bytes, other.width, other.height, other.bytesPerRow, other.channels)
    {
    }

    [[nodiscard]] Byte *row(int y) const { return bytes + y * bytesPerRow; }
};

using PlaneView = BasicPlaneView<const std::uint8_t>;
using MutablePlaneView = BasicPlaneView<std::uint8_t>;

/// A list of pixels, each named by its index y · width + x.
struct PixelIndices
{
    const int *indices = nullptr;
    std::size_t count = 0;

    PixelIndices() = default;
    PixelIndices(const int *indices_, std::size_t count_) : indices(indices_), count(count_) {}
    /// Of a vector or any other container of `int` that keeps its elements side by side.
    template <typename Container, typename = std::enable_if_t<std::is_convertible_v<
                                      decltype(std::declval<const Container &>().data()), const int *>>>
    PixelIndices(const Container &container) // NOLINT(google-explicit-constructor)
        : indices(container.data()), count(static_cast<std::size_t>(container.size()))
    {
    }

    [[nodiscard]] const int *begin() const { return indices; }
    [[nodiscard]] const int *end() const { return indices + count; }
};

} // namespace ornevo
