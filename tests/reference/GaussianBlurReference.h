// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reference/Plane.h"

#include <vector>

// The smoothing filters, written out one pixel at a time. They are the measure
// for the fast filters, so every sum of doubles is formed in a fixed order and
// every truncation stands where the filter's response needs it.
//
// In all of them dst must have the size of src and must not be src.

namespace reference {

/// The normalised weights of n taps (n below 1 counts as 1). Where sigma gives
/// no usable weights, the centre weight is 1 and all others are 0.
std::vector<double> gaussianWeights(int n, double sigma);

/// Separable blur of \a size taps; the border of size / 2 pixels is copied.
void blurAny(const Plane &src, Plane &dst, double sigma, int size);

/// Separable blur of nine taps; the border of four pixels is copied.
void blur99(const Plane &src, Plane &dst, double sigma);

/// 5 x 5 integer blur; the border of five pixels is copied.
void blurFast(const Plane &src, Plane &dst);

/// 3 x 3 table blur with a black frame of two pixels.
void blur33(const Plane &src, Plane &dst);

/// Separable blur of all four bytes of every pixel; the frame of dst keeps
/// what it held. An even size acts as the next odd one.
void fourChannelBlur(const Picture &src, Picture &dst, int size, double sigma);

/// The same for planes of interleaved bytes, whose width is that of the picture
/// times the channels.
void channelBlur(const Plane &src, Plane &dst, int channels, int size, double sigma);

} // namespace reference
