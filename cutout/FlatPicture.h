// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QBitmap>
#include <QImage>
#include <QPixmap>

namespace cutout {

/// `pixmap` at full strength on white, in Format_ARGB32, with `mask` for its mask: an empty one drops
/// whatever transparency there was, so that the colours below it show. Null when the pixmap is null or memory
/// is short.
[[nodiscard]] QImage flattened(QPixmap pixmap, const QBitmap &mask);

} // namespace cutout
