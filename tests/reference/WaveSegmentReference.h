// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reference/Plane.h"

#include <vector>

namespace reference {

/// Splits the picture into regions of similar colour: a list of pixel indices
/// for each, in the order in which they start.
std::vector<std::vector<int>> waveSegment(const Picture &picture, int threshold);

bool isBlack(unsigned char value);
bool isWhite(unsigned char value);

} // namespace reference
