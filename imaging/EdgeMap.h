// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

class QImage;

namespace imaging {

/// Fills the edge map of a picture of four bytes a pixel (blue, green, red, unused): one byte a pixel, row by
/// row without padding, `picture.width() * picture.height()` bytes at `edges`, which the caller owns. 0 is
/// flat, 255 the strongest edge; how it is made: ornevo::computeEdgeMap() in core/EdgeMap.h.
///
/// Throws std::invalid_argument when the picture has another depth or `edges` is null, and std::bad_alloc
/// with `edges` as it was.
void computeEdgeMap(const QImage &picture, std::uint8_t *edges);

} // namespace imaging
