// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QList>
#include <QRect>
#include <QRegion>

/// One batch of round brush dabs, in pixels of the picture that it edits.
struct BrushBatch
{
    QRegion pixels; ///< the pixels that change: the union of the dabs, cut to the picture
    QRect box;      ///< the box around the dabs, rounded to whole pixels; may reach outside the picture
};

/// The dabs inscribed in `squares`, moved by -`offset` from the scene into a picture of `size`. Where they
/// reach over more than 20000 rows they are cut down to the picture's surroundings before.
[[nodiscard]] BrushBatch brushBatch(const QList<QRect> &squares, QPoint offset, QSize size);

/// Adds `change` to the alpha of the pixels of `region`, limited to 0 .. 255; the colours stay. `picture` is
/// in Format_ARGB32. Parts of the region outside the picture are passed over.
void changeAlpha(QImage &picture, const QRegion &region, int change);
