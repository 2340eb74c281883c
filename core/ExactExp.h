// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

namespace ornevo {

/// e to the power of `x`, correctly rounded; `x` is at most 0 or not a number. The C libraries' own differ in
/// the last bit, with the library and with the processor, and so would the weights of a Gaussian.
[[nodiscard]] double exactExp(double x);

} // namespace ornevo
