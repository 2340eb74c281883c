// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reference/Plane.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace reference {

/// What a pixel costs whose edge map value is not 0.
enum class EdgeCost {
    strength, ///< that value
    highest   ///< 255
};

/// Weighted colour difference of two pixels, 0 .. 255: red, green and blue are
/// added in this order and the sum is truncated.
int luminanceDifference(std::uint32_t p, std::uint32_t q);

/// Floods \a picture from the seed lists, whose regions are 1, 2, .. in their
/// order; of lists that share a pixel the later one wins. Gives the label plane,
/// row by row: the region, or -1 on the frame and on watershed lines, or 0 where
/// nothing came. Nothing when no pixel could be flooded.
std::optional<std::vector<std::int32_t>> watershed(const Picture &picture,
                                                   const std::vector<std::vector<int>> &seeds,
                                                   const std::vector<std::uint8_t> &edges, EdgeCost rule);

} // namespace reference
