// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QList>

#include <vector>

/// What the benchmarks work on: the same pixels in every run on one machine.
namespace benchmarkpictures {

/// A picture of about `megapixels` million pixels, three wide by two high, QImage::Format_RGB32. It is laid
/// out in squares of 512 pixels that are cut, unscaled, from the photographs found on this machine, so that a
/// large mosaic has the same mixture of smooth and rough places as a small one. Without photographs it is
/// made of soft blobs with noise, and a warning is printed, since such figures compare with no others.
///
/// The mosaics are kept, so that benchmarks on one size share the work, in whatever order they run.
const QImage &photoMosaic(int megapixels);

/// A piece of a mosaic that the plain references manage in no time: what an answer is checked on before the
/// large pictures are measured.
QImage smallPicture();

/// Seed lists as a user's strokes would make them: `regions` wavy bands of dabs that cross the picture side
/// by side, none touching another.
std::vector<QList<int>> strokes(QSize size, int regions);

} // namespace benchmarkpictures
