// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reference/Plane.h"

#include <cstdint>
#include <vector>

namespace reference {

/// The horizontal derivative where \a xOrder is not zero, else the vertical
/// one (row above minus row below); zero on the one-pixel frame.
PlaneOf<std::int16_t> sobel(const Plane &src, int xOrder);

/// Length of the gradient, of which only the low eight bits are kept.
Plane sobelMagnitude(const Plane &src);

/// Colour difference of each pixel to the mean of its right, lower and lower
/// right neighbours, summed over the colours. \a picture holds four bytes a
/// pixel (blue, green, red, unused) without padding and has the size of dst.
/// The last row and the last column of dst keep what they held.
void colorDifference16(const std::vector<std::uint8_t> &picture, PlaneOf<std::uint16_t> &dst);

/// The same sum divided by nine.
void colorDifference8(const std::vector<std::uint8_t> &picture, Plane &dst);

/// The relief that the watershed floods: width x height bytes, row by row.
std::vector<std::uint8_t> edgeMap(const Picture &picture);

} // namespace reference
