// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imaging/CFrImage.h"

/// \file
/// Edge operators on planes of `width * height` elements. All return 0. The size is that of `src`; but for
/// FrSobelEdgeDetector(), `dst->data` is made by the caller, with as many elements. Where `data`
/// is null although there are pixels, they throw std::invalid_argument.

/// One Sobel derivative of a grey plane, exact, -1020 .. 1020. `xOrder` other than 0 gives the horizontal one
/// (right minus left), 0 the vertical one (row above minus row below). `yOrder` and `aperture` are not
/// consulted; the aperture is always 3. The one-pixel frame is 0.
int cvSobel(CFrImage<unsigned char> const *src, CFrImage<short> *dst, int xOrder, int yOrder, int aperture);

/// Sobel gradient magnitude, truncated; its low 8 bits are kept, so that 300 is stored as 44.
///
/// Sets up all five fields of `dst` and allocates its `data` with `new[]`: the caller releases it with
/// `delete[]`. What `dst->data` pointed to before is not released. `dst` must not be `src`. Throws
/// std::bad_alloc with `dst` as it was.
int FrSobelEdgeDetector(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst);

/// Colour difference of a picture of four bytes a pixel (blue, green, red, unused; no padding between rows).
/// With P(x, y) for a colour in column x of row y: the sum over the three colours of
/// |3·P(x-1, y-1) - P(x, y-1) - P(x, y) - P(x-1, y)|, 0 .. 2295, stored at (x-1, y-1). The last row and
/// column of `dst` are left as they were. `src->channels` is not consulted.
int FrColorRCEdgeDetector(CFrImage<unsigned char> *src, CFrImage<unsigned short> *dst);

/// The same sum divided by 9, 0 .. 255.
int FrColorRCEdgeDetector(CFrImage<unsigned char> *src, CFrImage<unsigned char> *dst);
