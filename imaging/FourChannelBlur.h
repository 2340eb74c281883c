// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

#include <functional>

/// Called with a percentage that never falls; may be empty.
using ProgressCallback = std::function<void(int)>;

/// Smooths each byte of a picture of four bytes a pixel with a separable Gaussian (see gaussianHalfKernel()):
/// the fourth byte like the colours.
///
/// `size` is the number of taps, made odd by adding 1 to an even one, and at least 1; `sigma` is in pixels.
/// The horizontal pass is truncated to bytes once, the vertical one after every pair of taps. The outer
/// size / 2 pixels of `dst` are left as they were; so is all of it where the picture is no larger than that.
/// `dst` has the size of `src`, four bytes a pixel, and is another picture; if not, nothing is done.
/// `progress` rises to just below 90; the last tenth is left to the caller. Throws std::bad_alloc, when `dst`
/// may be written in part.
void blurFourChannels(const QImage &src, QImage &dst, int size, double sigma,
                      const ProgressCallback &progress);

/// A picture to be handed to blurFourChannels() as `dst`, with the same `size`: where that leaves it alone it
/// is a copy of `src`, which has four bytes a pixel, and elsewhere its pixels are not yet written. Null when
/// memory is short.
[[nodiscard]] QImage roomForBlur(const QImage &src, int size);
