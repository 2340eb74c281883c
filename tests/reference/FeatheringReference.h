// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reference/Plane.h"

namespace reference {

/// Fades the alpha of \a picture along the border of the mask's set area,
/// which is what is not 0.
void feather(Picture &picture, const Plane &mask, int count);

} // namespace reference
