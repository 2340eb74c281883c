// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPixmap>

namespace cutout {

/// What lies under the cut-out in the preview of a photo of `size`.
///
/// Without a `picture`: `colour` (ARGB, not premultiplied) drawn over `checkerboard`, which stands for
/// transparency, scaled to `size` without smoothing; an opaque colour hides it. With a `picture`: that
/// picture, scaled smoothly to fit into `size` with its proportions kept, so that it may be smaller than
/// `size` on one side. Null when `size` is empty or memory is short, and for a colour without a checkerboard.
[[nodiscard]] QPixmap backgroundLayer(QSize size, QRgb colour, const QImage &checkerboard,
                                      const QImage &picture);

} // namespace cutout
