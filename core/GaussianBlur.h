// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Export.h"
#include "core/Progress.h"
#include "core/Views.h"

/// \file
/// Smoothing. Values are truncated toward zero; a byte keeps the low 8 bits. Destinations have the size and
/// the channels of the source. They are other memory, or the very same (address and bytes a row) where a
/// function says so; anything in between is the caller's error that is not noticed. Where a picture is lower
/// or narrower than a border band named below, the band ends with the picture.
///
/// The Gaussian is sampled, in double precision: the weight of the offset d is
/// sqrt(exp(-d² / (2σ²)) / (σ · 6.283 · σ)), divided by the sum over all taps. The square root widens it,
/// which is promised like all that looks odd below: see docs/compatibility.md. Where the weights can't be
/// formed (sigma 0, not a number, or so far out that their sum is zero or infinite), the kernel changes
/// nothing. Sums are formed centre first, then pair by pair outward, so that results are the same to the bit
/// on every machine.
///
/// All throw std::invalid_argument; those with a sigma std::bad_alloc as well.
namespace ornevo {

/// Smooths each byte of interleaved pixels of 1 to 4 channels on its own, an alpha like the colours.
///
/// `size` is the number of taps, made odd by adding 1 to an even one, and at least 1; any int will do. The
/// horizontal pass is truncated to bytes once, the vertical one after every pair of taps, so that a constant
/// picture loses up to size / 2 levels. The outer size / 2 pixels of `dst` are left as they were; so is all
/// of it where the picture is no larger than that. `dst` may be `src`.
///
/// `progress` gets the percentages of the two passes one after the other: y · 45 / height for every row, then
/// 45 + y · 45 / height for every row y within the border band. They come at an even pace: both passes are
/// done in one. The last tenth is left to the caller.
ORNEVO_CORE_EXPORT void blurChannels(const PlaneView &src, const MutablePlaneView &dst, int size,
                                     double sigma, const ProgressCallback &progress = {});

/// blurChannels() of all four bytes of a pixel, faster over large areas of one colour, such as a mask has.
ORNEVO_CORE_EXPORT void blurFourChannels(const PictureView &src, const MutablePictureView &dst, int size,
                                         double sigma, const ProgressCallback &progress = {});

/// Smooths a plane of one channel, and keeps doubles between the passes: the horizontal sums are not
/// truncated, the vertical ones after every pair of taps. An even number of taps acts as the next odd one but
/// for the division by the sum of the weights, which then is over `size` taps. The outer size / 2 pixels are
/// copied from `src`. `dst` may be `src`.
ORNEVO_CORE_EXPORT void blurPlane(const PlaneView &src, const MutablePlaneView &dst, double sigma, int size);

/// The same with nine taps and one truncation, at the end. The outer 4 pixels are copied.
ORNEVO_CORE_EXPORT void blurPlaneNineTaps(const PlaneView &src, const MutablePlaneView &dst, double sigma);

/// A fixed 5 x 5 integer kernel of sum 159. The outer 5 pixels are copied, although the kernel reaches
/// only 2.
ORNEVO_CORE_EXPORT void blurPlaneFiveByFive(const PlaneView &src, const MutablePlaneView &dst);

/// A fixed 3 x 3 kernel whose right neighbour weighs half as much as the left one; each product is truncated
/// before it is summed. The outer 2 pixels become 0.
ORNEVO_CORE_EXPORT void blurPlaneThreeByThree(const PlaneView &src, const MutablePlaneView &dst);

} // namespace ornevo
