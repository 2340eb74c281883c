// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

/// The plain picture buffer of the image library: rows from top to bottom, `width` elements each, no padding.
///
/// It owns nothing: whoever fills it allocates `data` with `new[]`, releases it with `delete[]` and sets it
/// back to null. A filter never changes its input and, but for `FrSobelEdgeDetector`, writes into storage
/// that the caller has made. The number of elements is `width * height * channels * depth`.
template <typename T> struct CFrImage
{
    T *data = nullptr; ///< the elements, or null
    int width = 0;     ///< pixels a row
    int height = 0;    ///< rows
    int channels = 1;  ///< interleaved channels a pixel; 1 for a grey plane
    int depth = 1;     ///< a second factor of the element count; always 1 here
};
