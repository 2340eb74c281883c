// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/EdgeDetectors.h"

#include "core/Checks.h"
#include "core/RowFilters.h"

#include <algorithm>
#include <cstdlib>

namespace ornevo {

namespace {

int colourDifferenceAt(const std::uint8_t *above, const std::uint8_t *here)
{
    int sum = 0;
    for (int colour = 0; colour < 3; ++colour)
        sum += std::abs(3 * above[colour] - above[colour + 4] - here[colour + 4] - here[colour]);
    return sum;
}

// The last row and column are not written: promised, see docs/compatibility.md.
template <int divisor, typename Destination>
void colourDifferences(const PictureView &picture, const Destination &difference)
{
    for (int y = 1; y < picture.height; ++y) {
        const std::uint8_t *above = picture.row(y - 1);
        const std::uint8_t *here = picture.row(y);
        auto *out = difference.row(y - 1);
        for (int x = 1; x < picture.width; ++x, above += 4, here += 4)
            out[x - 1] = static_cast<std::remove_reference_t<decltype(*out)>>(
                colourDifferenceAt(above, here) / divisor);
    }
}

/// Calls work(above, mid, below, out) for each row that is neither the first nor the last, and fills those
/// with zeros.
template <typename Destination, typename Work>
void forEachInnerRow(const PlaneView &plane, const Destination &destination, Work work)
{
    for (int y = 0; y < plane.height; ++y) {
        auto *out = destination.row(y);
        if (y == 0 || y == plane.height - 1 || plane.width == 0)
            std::fill_n(out, plane.width, 0);
        else
            work(plane.row(y - 1), plane.row(y), plane.row(y + 1), out);
    }
}

} // namespace

void sobelDerivative(const PlaneView &plane, const WordPlaneView<std::int16_t> &derivative,
                     Derivative direction)
{
    checks::plane(plane, "plane");
    checks::words(derivative, "derivative");
    checks::sameSize(derivative, plane, "derivative");
    const bool horizontal = direction == Derivative::horizontal;
    forEachInnerRow(plane, derivative, [&](const auto *above, const auto *mid, const auto *below, auto *out) {
        out[0] = 0;
        out[plane.width - 1] = 0;
        for (int x = 1; x < plane.width - 1; ++x) {
            const int gradient = horizontal ? above[x + 1] + 2 * mid[x + 1] + below[x + 1] - above[x - 1] -
                                                  2 * mid[x - 1] - below[x - 1]
                                            : above[x - 1] + 2 * above[x] + above[x + 1] - below[x - 1] -
                                                  2 * below[x] - below[x + 1];
            out[x] = static_cast<std::int16_t>(gradient);
        }
    });
}

void sobelMagnitude(const PlaneView &plane, const MutablePlaneView &magnitude)
{
    checks::plane(plane, "plane");
    checks::plane(magnitude, "magnitude");
    checks::sameSize(magnitude, plane, "magnitude");
    forEachInnerRow(plane, magnitude, [&](const auto *above, const auto *mid, const auto *below, auto *out) {
        rowfilters::sobelMagnitudeRow(above, mid, below, plane.width, out);
    });
}

void colourDifference(const PictureView &picture, const WordPlaneView<std::uint16_t> &difference)
{
    checks::picture(picture, "picture");
    checks::words(difference, "difference");
    checks::sameSize(difference, picture, "difference");
    colourDifferences<1>(picture, difference);
}

void colourDifference(const PictureView &picture, const MutablePlaneView &difference)
{
    checks::picture(picture, "picture");
    checks::plane(difference, "difference");
    checks::sameSize(difference, picture, "difference");
    colourDifferences<9>(picture, difference);
}

} // namespace ornevo
