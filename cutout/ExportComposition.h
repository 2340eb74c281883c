// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPixmap>
#include <QPoint>
#include <QSize>

namespace cutout {

/// What an export puts together.
struct ExportLayers
{
    QPixmap canvas;   ///< the background at its own size
    QImage cutOut;    ///< the object with its alpha
    QPoint offset;    ///< where the object lies, in pixels of the preview
    QSize background; ///< the extent of the background on the preview, its zoom included, in pixels
};

/// A pixmap of the picture. Throws std::bad_alloc when memory is short.
[[nodiscard]] QPixmap asPixmap(QImage picture);

/// A canvas of one colour (ARGB, not premultiplied); null when `size` is empty. Throws std::bad_alloc when
/// memory is short.
[[nodiscard]] QPixmap colourCanvas(QSize size, QRgb colour);

/// The composition at `size`: the canvas stretched to it, and over it the object, stretched and moved by
/// size / background with everything truncated to whole pixels. Both are scaled smoothly.
///
/// Null when `size` is empty or the canvas null. Where the background has no extent the object is left out.
/// A stretched object of more than 2^28 pixels (1 GiB) is never made whole: it is drawn scaled. Throws
/// std::bad_alloc rather than leave out what there is no memory for. A canvas that is moved in, has that size
/// already and is nobody else's is painted on without a copy.
[[nodiscard]] QImage composeExport(ExportLayers layers, QSize size);

} // namespace cutout
