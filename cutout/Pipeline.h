// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/LargeMemory.h"
#include "core/Progress.h"
#include "cutout/AlphaBrush.h"
#include "cutout/BackgroundLayer.h"
#include "cutout/CutOut.h"
#include "cutout/ExportComposition.h"
#include "cutout/FourChannelBlur.h"
#include "cutout/PictureFile.h"
#include "cutout/Seeds.h"

#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

#include <cstdint>

/// \file
/// The way of the data, from a photo's file to the exported picture, without a window. The steps, in the
/// order in which they run; each takes what the ones before it gave:
///
///     photo    readPhoto(file)                              PictureFile.h
///     edges    newEdgeMap(photo), findEdges(photo, edges)
///     object   floodObject(photo, edges, seeds)             indices of the object's pixels
///     overlay  objectOverlay(size, object)                  what Mask shows
///     mask     objectMask(size, object), smoothMask()       black keeps, white removes
///     cut-out  cutOut(photo, mask)                          CutOut.h
///              brushBatch(), changeAlpha()                  AlphaBrush.h; touches the cut-out up
///     preview  backgroundLayer() under premultiplied()      BackgroundLayer.h
///     export   exportCanvas(), composeExport()              ExportComposition.h
///     file     writePicture()                               PictureFile.h
///
/// Where memory is short a picture that is returned is null, unless the step says that it throws
/// std::bad_alloc. Pictures of more than 2^31 - 1 pixels are not made.
namespace cutout {

/// A byte a pixel, row by row: 0 is flat, 255 the strongest edge.
using EdgeMap = ornevo::LargeArray<std::uint8_t>;

/// The picture in a file, in Format_RGB32; otherwise like readPicture().
[[nodiscard]] QImage readPhoto(const QString &path);

/// Memory for the edge map of `photo`, not yet written. Null when memory is short.
[[nodiscard]] EdgeMap newEdgeMap(const QImage &photo);

/// Fills the edge map of `photo`, which has four bytes a pixel. Throws std::bad_alloc; then it is all 0, with
/// which the flooding goes by differences of brightness.
void findEdges(const QImage &photo, EdgeMap &edges);

/// Grows the object and what is around it from the seeds; see ornevo::floodTwoRegions(). The indices of the
/// object's pixels, in increasing order: none when a seed list is empty or no pixel can be flooded. Throws
/// std::bad_alloc.
[[nodiscard]] QList<int> floodObject(const QImage &photo, const EdgeMap &edges, const Seeds &seeds,
                                     const ornevo::ProgressCallback &progress = {});

/// The object in green on white.
[[nodiscard]] QImage objectOverlay(QSize size, const QList<int> &object);

/// The object in black on white.
[[nodiscard]] QImage objectMask(QSize size, const QList<int> &object);

/// Standard deviation in pixels of the Gaussian that smooths a mask with so many taps.
constexpr double smoothingSigma(int taps)
{
    return taps / 5.0;
}

/// `mask` with a border softened by a Gaussian of `taps` taps. Null when memory is short.
[[nodiscard]] QImage smoothMask(const QImage &mask, int taps, const ornevo::ProgressCallback &progress = {});

/// What lies under the object in an export: `picture` at its own size or, where it is null, `size` pixels of
/// `colour` (ARGB, not premultiplied). The chessboard of the preview is not exported. Throws std::bad_alloc.
[[nodiscard]] QPixmap exportCanvas(QSize size, QRgb colour, const QImage &picture);

} // namespace cutout
