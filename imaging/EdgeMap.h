// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

class QImage;

/// Fills the edge map of a picture of four bytes a pixel (blue, green, red, unused): one byte a pixel, row by
/// row without padding, `picture.width() * picture.height()` bytes at `edges`, which the caller owns. 0 is
/// flat, 255 the strongest edge. The format of the picture is not checked.
///
/// Each colour plane is smoothed (FrGaussianBlurAny, sigma 1.4, seven taps), its Sobel magnitude taken
/// (FrSobelEdgeDetector), and the three averaged. What lies below the mean of the picture becomes 0; the rest
/// is lifted by 255 minus the largest average, modulo 256. A picture without pixels is left alone.
///
/// Time is linear in the pixels; working storage is some thirty rows, whatever the height. Throws
/// std::bad_alloc with `edges` as it was.
void computeEdgeMap(const QImage &picture, std::uint8_t *edges);
