// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Progress.h"

#include <QImage>

namespace cutout {

/// ornevo::blurFourChannels() on pictures. `dst` has the size of `src`, four bytes a pixel, and is another
/// picture; if not, nothing is done. Throws std::bad_alloc, when `dst` may be written in part.
void blurFourChannels(const QImage &src, QImage &dst, int size, double sigma,
                      const ornevo::ProgressCallback &progress);

/// A picture to be handed to blurFourChannels() as `dst`, with the same `size`: where that leaves it alone it
/// is a copy of `src`, which has four bytes a pixel, and elsewhere its pixels are not yet written. Null when
/// memory is short.
[[nodiscard]] QImage blurDestination(const QImage &src, int size);

} // namespace cutout
