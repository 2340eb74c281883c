// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QList>

namespace cutout {

/// A picture of `size` in Format_RGB32, filled with `paper`, in which the pixels named by `indices`
/// (y · width + x, in any order, repeats allowed) have the colour `ink`.
///
/// Indices off the picture are ignored. Null when `size` is empty or memory is short.
[[nodiscard]] QImage paintIndices(QSize size, const QList<int> &indices, QRgb ink, QRgb paper);

} // namespace cutout
