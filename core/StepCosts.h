// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/LargeMemory.h"
#include "core/TiledLayout.h"
#include "core/Views.h"

#include <cstdint>

/// What the steps of the flooding cost. Not part of the library's interface.
namespace ornevo::flooding {

/// What a pixel costs where the edge map is not 0.
enum class EdgeCost {
    strength, ///< the value of the edge map
    highest   ///< 255, whatever the value: promised, see docs/compatibility.md
};

/// What it costs to step from a pixel to each of its neighbours.
struct StepCosts
{
    std::uint8_t left;
    std::uint8_t right;
    std::uint8_t up;
    std::uint8_t down;
};

/// The brightness difference of two pixels (blue, green, red, unused).
std::uint8_t brightnessDifference(const std::uint8_t *p, const std::uint8_t *q);

/// What a pixel costs that differs by `difference` from the one it is reached from.
inline std::uint8_t pixelCost(std::uint8_t edge, std::uint8_t difference, EdgeCost rule)
{
    if (edge == 0)
        return difference;
    return rule == EdgeCost::strength ? edge : std::uint8_t{255};
}

/// The costs of all steps from the pixels within the one-pixel frame, in the tiled layout. What stands
/// in the other places means nothing. Throws std::bad_alloc.
LargeArray<StepCosts> makeStepCosts(const PictureView &picture, const PlaneView &edges, EdgeCost rule);

} // namespace ornevo::flooding
