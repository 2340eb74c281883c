// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPixmap>

namespace cutout {

/// `pixmap` at full strength on white, in Format_ARGB32. Whatever transparency it has is dropped first, so
/// that its own colours show there. Null when it is null or memory is short.
[[nodiscard]] QImage flattened(QPixmap pixmap);

} // namespace cutout
