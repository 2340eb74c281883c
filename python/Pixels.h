// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "python/StridedView.h"

#include <cstdint>
#include <vector>

/// \file
/// What is read out of arrays of any layout. Each element is read once, and without Python: another thread
/// may change the arrays meanwhile.
namespace ornevo::python {

enum class ChannelOrder {
    RedFirst, ///< red, green, blue, alpha
    BlueFirst ///< blue, green, red, alpha
};

/// Writes grey, RGB or RGBA pixels as four bytes each, side by side. Without an alpha it is 255.
void writeFourChannels(const StridedView &image, ChannelOrder order, std::uint8_t *out);

/// Writes the elements, bytes of as many channels, side by side.
void writePacked(const StridedView &image, std::uint8_t *out);

/// The indices y · width + x of the bytes that are not 0.
[[nodiscard]] std::vector<int> indicesOfSet(const StridedView &mask);

/// What integers look like in memory.
struct IntegerType
{
    int bytes = 1;
    bool isSigned = false;
    bool isSwapped = false; ///< not in the byte order of this machine
};

/// The elements that are not 0, row by row.
struct MarkedPixels
{
    std::vector<int> indices;
    std::vector<std::int32_t> labels;
    bool hasNegative = false;
    bool hasTooLarge = false; ///< for 32 bits
};

[[nodiscard]] MarkedPixels markedPixels(const StridedView &markers, IntegerType type);

} // namespace ornevo::python
