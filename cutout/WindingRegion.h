// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPolygon>
#include <QRect>
#include <QRegion>

namespace cutout {

/// The same pixels as QRegion(polygon, Qt::WindingFill) & bounds, but in time that grows with the rows of
/// `bounds` and the corners of the polygon: QRegion's grows with the square of the polygon's rows. It has no
/// largest polygon either, where QRegion gives up.
[[nodiscard]] QRegion windingRegion(const QPolygon &polygon, const QRect &bounds);

} // namespace cutout
