// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRect>

namespace cutout {

/// The mipmap level that follows `level`, half as wide and high (rounded up): every pixel is the average of a
/// square of four, rounded.
///
/// For formats of four bytes a pixel whose bytes can be averaged: RGB32 and ARGB32_Premultiplied. At an odd
/// edge the last row or column counts twice. Null for other formats, for a null picture, and when memory is
/// short.
[[nodiscard]] QImage nextMipmapLevel(const QImage &level);

/// Renews the part of `next` that stems from `area` of `level`, where `next` was made by nextMipmapLevel().
/// Returns that part.
QRect renewMipmapLevel(QImage &next, const QImage &level, const QRect &area);

} // namespace cutout
