// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Export.h"
#include "core/Views.h"

namespace ornevo {

/// Softens the border of a cut-out over three pixels: walks from the border of the mask into its set area in
/// rings of one pixel and lowers the alpha, the fourth byte, of the picture there.
///
/// \param picture changed in place
/// \param mask    one channel; a byte other than 0 is set. Usually of the size of the picture: what of it
///                lies off the picture is left out
/// \param rings   how many rings are walked beyond the first, none below 1; more than 3 make no difference
///
/// Ring 1 are the clear pixels that touch a set one (eight neighbours, the outermost rows and columns left
/// out); each further ring are the set pixels next to the ring before (four neighbours). A step down looks at
/// the mask pixel above and not at the one below, so that a pixel below is taken whenever the pixel above is
/// set. Rings 1 to 4 get the alpha 0, 0, 100 and 180; further rings change nothing.
///
/// Takes time linear in the pixels and two bytes a pixel of working storage. Throws std::invalid_argument,
/// also for a mask of more than 2^31 - 1 pixels, and std::bad_alloc.
ORNEVO_CORE_EXPORT void featherEdge(const MutablePictureView &picture, const PlaneView &mask, int rings);

} // namespace ornevo
