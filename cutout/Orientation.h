// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace cutout {

/// Which side was up when the photo was taken: the orientation, 1 to 8, among the notes of a camera; 1 where
/// they don't say. Looks into the first directory alone: directories can be chained in circles.
[[nodiscard]] int orientationIn(const QByteArray &exif);

/// A segment of a JPEG that holds the orientation and nothing else.
[[nodiscard]] QByteArray orientationSegment(int orientation);

} // namespace cutout
