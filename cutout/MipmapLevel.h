// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRect>

namespace cutout {

/// A picture of half the width and height (rounded up): every pixel is the average of a square of four,
/// rounded.
///
/// For formats of four bytes a pixel whose bytes can be averaged: RGB32 and ARGB32_Premultiplied. At an odd
/// edge the last row or column counts twice. Null for other formats, for a null picture, and when memory is
/// short.
[[nodiscard]] QImage halved(const QImage &picture);

/// Renews the part of `half` that stems from `area` of `picture`, where `half` was made by halved(). Returns
/// that part.
QRect renewHalved(QImage &half, const QImage &picture, const QRect &area);

} // namespace cutout
