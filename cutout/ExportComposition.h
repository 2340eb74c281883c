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

/// The composition at `size`: the canvas stretched to it, and over it the object, stretched and moved by
/// size / background with everything truncated to whole pixels. Both are scaled smoothly.
///
/// Null when `size` is empty, the canvas null or memory short. Where the background has no extent the object
/// is left out. A stretched object of more than 2^28 pixels (1 GiB) is never made whole: it is drawn scaled.
[[nodiscard]] QPixmap composeExport(const ExportLayers &layers, QSize size);

} // namespace cutout
