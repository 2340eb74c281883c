// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

namespace ornevo {

/// Half of a symmetric sampled Gaussian: `[0]` is the weight of the centre, `[k]` that of the offsets -k and
/// +k, for k = 1 .. taps / 2.
///
/// The weight of the offset d is sqrt(exp(-d² / (2σ²)) / (σ · 6.283 · σ)), divided by the sum over all
/// `taps` offsets 0 - taps/2 .. taps - 1 - taps/2. The square root widens the kernel: promised, see
/// docs/compatibility.md. For an even number of taps the kernel is applied with taps + 1 of them, so that its
/// weights sum to more than 1.
///
/// `taps` below 1 acts as 1. Where the weights can't be formed (sigma 0, not a number, or so far out that
/// their sum is zero or infinite) the kernel that changes nothing comes back: centre 1, all others 0.
[[nodiscard]] std::vector<double> gaussianHalfKernel(int taps, double sigma);

} // namespace ornevo
