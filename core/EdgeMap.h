// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Export.h"
#include "core/Progress.h"
#include "core/Views.h"

namespace ornevo {

/// Fills `edges`, a plane of one channel and of the picture's size that overlaps nothing of it, with the edge
/// map of `picture`: 0 is flat, 255 the strongest edge. The fourth byte of the pixels is ignored.
///
/// Each colour is smoothed (blurPlane(), sigma 1.4, seven taps), the low byte of its Sobel magnitude taken
/// (sobelMagnitude()), and the three averaged. What lies below the mean of the picture becomes 0; the rest is
/// lifted by 255 minus the largest average, modulo 256. Black is 255 throughout; of another single colour the
/// blur can lose levels inside and not in its border band, which makes an edge there.
///
/// `progress` is called once a row or less, several times where a row is longer than 65536 pixels, and ends
/// at 100. Time is linear in the pixels; working storage is some thirty rows of at most 65536 pixels. Throws
/// std::invalid_argument and std::bad_alloc.
ORNEVO_CORE_EXPORT void computeEdgeMap(const PictureView &picture, const MutablePlaneView &edges,
                                       const ProgressCallback &progress = {});

} // namespace ornevo
