// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Export.h"
#include "core/Views.h"

#include <cstddef>
#include <cstdint>

/// \file
/// Edge operators. Destinations are of the size of the source, one channel, and overlap nothing of it. All
/// throw std::invalid_argument.
namespace ornevo {

/// A plane of 16-bit elements; rows begin `elementsPerRow` elements apart.
template <typename Element> struct WordPlaneView
{
    Element *elements = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t elementsPerRow = 0; ///< at least width

    [[nodiscard]] Element *row(int y) const { return elements + y * elementsPerRow; }
};

enum class Derivative {
    horizontal, ///< right minus left
    vertical    ///< the row above minus the row below
};

/// One Sobel derivative of a plane, exact, -1020 .. 1020. The one-pixel frame is 0. (I. Sobel, G. Feldman: An
/// isotropic 3 x 3 image gradient operator, 1968.)
ORNEVO_CORE_EXPORT void sobelDerivative(const PlaneView &plane, const WordPlaneView<std::int16_t> &derivative,
                                        Derivative direction);

/// Length of the Sobel gradient, truncated; its low 8 bits are kept, so that 300 is stored as 44. The
/// one-pixel frame is 0.
ORNEVO_CORE_EXPORT void sobelMagnitude(const PlaneView &plane, const MutablePlaneView &magnitude);

/// With P(x, y) for a colour in column x of row y: the sum over the three colours of
/// |3·P(x-1, y-1) - P(x, y-1) - P(x, y) - P(x-1, y)|, 0 .. 2295, stored at (x-1, y-1). The last row and
/// column of the destination are left as they were.
ORNEVO_CORE_EXPORT void colourDifference(const PictureView &picture,
                                         const WordPlaneView<std::uint16_t> &difference);

/// The same sum divided by 9, 0 .. 255.
ORNEVO_CORE_EXPORT void colourDifference(const PictureView &picture, const MutablePlaneView &difference);

} // namespace ornevo
