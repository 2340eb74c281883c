// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Export.h"
#include "core/Progress.h"
#include "core/Views.h"

#include <cstdint>
#include <functional>

namespace ornevo {

/// Gets the pixels of one region, in the order in which they were reached; the list is gone afterwards. An
/// exception thrown from it comes out, like one of a ProgressCallback.
using RegionVisitor = std::function<void(const PixelIndices &pixels)>;

/// Splits a whole picture into regions of similar colour: every pixel that no region has taken yet, in row
/// order, starts a region that grows in waves as long as the colour step stays below `threshold`. With a
/// threshold of 0 or less every pixel is a region of its own.
///
/// The step from a pixel to a neighbour is the sum over the three colours of (pixel - neighbour) modulo 256,
/// 0 .. 765. It is not symmetric: a neighbour that is brighter by a little is far away. The pixel that starts
/// a region can be reached again, within it or by a later one, and is then listed twice; and only a pixel
/// whose index is above the width steps up, so that the first pixel of the second row never does.
///
/// `progress` is called after every row with y · 100 / height. Time is linear in the pixels; working storage
/// about one byte a pixel, one region and two waves. Throws std::invalid_argument, also for a picture of more
/// than 2^31 - 1 pixels, and std::bad_alloc.
ORNEVO_CORE_EXPORT void segmentWaves(const PictureView &picture, int threshold, const RegionVisitor &region,
                                     const ProgressCallback &progress = {});

/// The same as a plane of labels, `picture.width · picture.height` elements: regions are numbered from 1 in
/// the order in which they start, and a pixel has the label of the first one that lists it.
ORNEVO_CORE_EXPORT void labelWaves(const PictureView &picture, int threshold, std::int32_t *labels,
                                   const ProgressCallback &progress = {});

} // namespace ornevo
