// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

namespace cutout {

/// The cut-out: `photo` in Format_ARGB32 with alpha = 255 - the blue byte of `mask` at every pixel that the
/// mask covers; a black mask keeps, a white one removes. The colours are left as they are. Pixels of the
/// photo beyond a smaller mask stay opaque.
///
/// `mask` has four bytes a pixel. Null when `photo` is null or memory is short.
[[nodiscard]] QImage cutOut(const QImage &photo, const QImage &mask);

/// `picture`, in Format_ARGB32, in the format that is fast to draw, Format_ARGB32_Premultiplied. Null when it
/// is null or memory is short.
[[nodiscard]] QImage premultiplied(const QImage &picture);

} // namespace cutout
