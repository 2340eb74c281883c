// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "segmentation/Flooding.h"

#include <cstdlib>

namespace flooding {

namespace {

// Summed in this order and truncated: a grey step of n often comes out as n - 1, and that is relied on.
std::uint8_t brightnessDifference(const std::uint8_t *p, const std::uint8_t *q)
{
    const double difference = 0.299 * (p[2] - q[2]) + 0.587 * (p[1] - q[1]) + 0.114 * (p[0] - q[0]);
    return static_cast<std::uint8_t>(std::abs(static_cast<int>(difference)));
}

} // namespace

void colourDifferences(const std::uint8_t *row, const std::uint8_t *above, int width, std::uint8_t *toRight,
                       std::uint8_t *toAbove)
{
    for (int x = 0; x < width - 1; ++x)
        toRight[x] = brightnessDifference(row + 4 * x, row + 4 * (x + 1));
    toRight[width - 1] = 0;
    for (int x = 0; x < width; ++x)
        toAbove[x] = above != nullptr ? brightnessDifference(row + 4 * x, above + 4 * x) : std::uint8_t{0};
}

} // namespace flooding
