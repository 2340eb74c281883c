// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

namespace cutout {

/// Pixels from which the flooding starts, as indices y · width + x in any order. Repeats and indices off the
/// picture do no harm; a pixel in both lists lies outside.
struct Seeds
{
    QList<int> keep;   ///< inside of the object
    QList<int> remove; ///< outside of it
};

} // namespace cutout
