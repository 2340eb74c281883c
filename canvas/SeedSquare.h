// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>
#include <QSize>

namespace markers {

/// Appends the pixel indices (y · width + x) of a marker dab to `seeds`, column by column, each from top to
/// bottom.
///
/// The dab covers the square whose corner is the corner of `rect` and whose side is the width of `rect`, all
/// three truncated toward zero; the height is never read. The square is clipped at the right and the bottom
/// edge of a picture of `size` only: left of or above the picture the formula runs on, and its indices may be
/// negative or fall into the previous row, which docs/compatibility.md promises. A square of no area, or one
/// that begins right of or below the picture, adds nothing. An index that does not fit into an int is left
/// out.
void appendSeedSquare(const QRectF &rect, QSize size, QList<int> &seeds);

} // namespace markers
