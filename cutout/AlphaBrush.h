// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QList>
#include <QRect>
#include <QRegion>

namespace cutout {

/// One batch of round brush dabs, in pixels of the picture that it edits.
struct BrushBatch
{
    QRegion pixels; ///< the pixels that change: the union of the dabs, clipped to the picture
    QRect box;      ///< the box around the dabs, rounded to whole pixels; may reach outside the picture
};

/// The round dabs that fit into `squares`, which are in pixels of the scene. The picture, of `size`, lies at
/// `offset` on the scene. Dabs that reach over more than 20000 rows together are clipped a little outside the
/// picture, and the box with them. The time grows with the picture and the number of dabs, not with their
/// size.
[[nodiscard]] BrushBatch brushBatch(const QList<QRect> &squares, QPoint offset, QSize size);

/// Adds `change` to the alpha of the pixels of `region`, limited to 0 .. 255; the colours stay. Parts of
/// the region outside the picture are ignored. Does nothing unless `picture` is in Format_ARGB32.
void changeAlpha(QImage &picture, const QRegion &region, int change);

} // namespace cutout
