// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imaging/CFrImage.h"

/// \file
/// Smoothing of grey planes. All four return 0. `src` and `dst` have the same size, one channel, and storage
/// made by the caller; `src` is left as it is unless it is `dst`, too, which FrGaussianBlurFast() and
/// FrGaussianBlur33() do not allow. Values are truncated toward zero, and a byte keeps the low 8 bits. In a
/// picture lower or narrower than the border band named below, the band ends with the picture. All throw
/// std::invalid_argument when `data` is null where there are pixels or the sizes differ; the two that take a
/// sigma std::bad_alloc as well.

/// Separable Gaussian with `size` taps (see core/GaussianBlur.h; r = size / 2). The horizontal pass keeps
/// doubles; the vertical one truncates to a byte after each pair of taps, so that a constant picture loses up
/// to r levels. The outer r pixels are copied from `src`. Needs 2r + 1 rows of doubles of working storage.
int FrGaussianBlurAny(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst, double sigma, int size);

/// Separable Gaussian with nine taps, both passes in doubles, truncated once. The outer 4 pixels are copied.
int FrGaussianBlur99(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst, double sigma);

/// A fixed 5 x 5 integer kernel of sum 159. The outer 5 pixels are copied, although the kernel reaches
/// only 2. A source with more than one channel is the caller's error: nothing is written.
int FrGaussianBlurFast(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst);

/// A fixed 3 x 3 kernel whose right neighbour weighs half as much as the left one; each product is truncated
/// before it is summed. The outer 2 pixels become 0. Goes by the size of `dst`. A source with more than one
/// channel is the caller's error: nothing is written.
int FrGaussianBlur33(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst);
