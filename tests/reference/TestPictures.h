// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reference/Pictures.h"

#include <QImage>
#include <QList>
#include <QSize>

#include <cstdint>
#include <vector>

// The pictures of Pictures.h as Qt has them.

namespace testpictures {

QImage toImage(const reference::Picture &picture, QImage::Format format = QImage::Format_RGB32);
/// Of four bytes a pixel.
reference::Picture toPicture(const QImage &image);

/// Sizes at which borders, vector tails and small loops go wrong.
QList<QSize> awkwardSizes();

// Pictures in QImage::Format_RGB32, fourth byte 255.
QImage randomImage(int width, int height, std::uint32_t seed);
QImage constantImage(int width, int height, QRgb color);
/// Red grows along x, green along y, blue along both, each modulo 256.
QImage rampImage(int width, int height, int step);
/// \a left up to column \a at - 1, \a right from there on.
QImage stepImage(int width, int height, int at, QRgb left, QRgb right);
/// Square tiles of the given side, each of one of a few random colours.
QImage plateauImage(int width, int height, int tile, int colors, std::uint32_t seed);
/// Random greys: the exact difference of two pixels is a whole number, which
/// the sum in doubles can miss by a hair on either side.
QImage greyStepsImage(int width, int height, std::uint32_t seed);
/// Grey picture of a plane's values.
QImage greyImage(int width, int height, const std::vector<std::uint8_t> &plane);
/// Smooth blobs of colour with a little noise: something like a photo.
QImage blobImage(int width, int height, std::uint32_t seed);

/// Random bytes in all four channels, QImage::Format_ARGB32.
QImage randomArgbImage(int width, int height, std::uint32_t seed);

/// A blob mask as a picture of 0xff000000 (inside) and 0xffffffff, in
/// QImage::Format_ARGB32.
QImage blobMaskImage(int width, int height, std::uint32_t seed);

/// The same picture in a larger buffer: every row is followed by
/// \a extraPixels pixels of random bytes. The image owns that buffer, but a
/// copy that detaches loses the padding. 32-bit formats only.
QImage paddedImage(const QImage &image, int extraPixels, std::uint32_t seed);

/// True when the padding of a padded image still holds the bytes that
/// paddedImage() wrote with this seed.
bool paddingUntouched(const QImage &padded, std::uint32_t seed);

/// Random pixel indices; repeats are possible. Empty for an empty picture.
QList<int> randomIndices(int width, int height, int count, std::uint32_t seed);

} // namespace testpictures
