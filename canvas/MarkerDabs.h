// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cutout/Seeds.h"

#include <QColor>
#include <QGraphicsItem>
#include <QList>
#include <QSize>

/// \file
/// What a marker dab looks like on the scene, for those who lay it and those who read it. The dabs on the
/// scene are the marker data; nothing else keeps them.
namespace markers {

inline constexpr QRgb keepColour = qRgb(50, 255, 50);   ///< for the eye only
inline constexpr QRgb removeColour = qRgb(255, 10, 10); ///< for the eye only
inline constexpr QRgb blueColour = qRgb(10, 10, 255);   ///< seedsOf() tells the Blue marker by it
inline constexpr QRgb penColour = qRgb(255, 255, 10);   ///< for the eye only

/// Reads the seeds, which are the pixels under the dabs (see appendSeedSquare()), off the items of a scene
/// that shows a picture of `size`. A rectangle is a Keep dab whatever its colour; an ellipse is a Remove dab,
/// whatever made it, unless its pen is exactly the blue of the Blue marker.
[[nodiscard]] cutout::Seeds seedsOf(const QList<QGraphicsItem *> &items, QSize size);

} // namespace markers
