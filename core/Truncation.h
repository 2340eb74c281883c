// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace ornevo {

/// Truncates toward zero. What lies so far out that arithmetic with it could overflow an int is moved to a
/// bound that is still off every picture; what is not a number becomes 0.
inline int truncateToInt(double value)
{
    constexpr double bound = std::numeric_limits<int>::max() * 0.25;
    return value == value ? static_cast<int>(std::clamp(value, -bound, bound)) : 0;
}

/// Rounds to the nearest whole number, halves away from zero, within the same bounds.
inline int roundToInt(double value)
{
    return truncateToInt(std::round(value));
}

} // namespace ornevo
