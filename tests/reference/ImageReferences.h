// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/reference/EdgeDetectorsReference.h"
#include "tests/reference/FeatheringReference.h"
#include "tests/reference/GaussianBlurReference.h"
#include "tests/reference/WatershedReference.h"
#include "tests/reference/WaveSegmentReference.h"

#include <QBitmap>
#include <QImage>
#include <QList>

#include <cstdint>
#include <vector>

// The references under the signatures that programs with Qt use.

namespace reference {

/// Blurs all four bytes of every pixel; the frame of dst keeps what it held.
void fourChannelBlur(const QImage &src, QImage &dst, int size, double sigma);

std::vector<std::uint8_t> edgeMap(const QImage &picture);

/// Floods \a image from the Keep and the Remove seeds and appends the indices
/// of the Keep region to \a result. Returns 0, or -1 when nothing was done.
int watershed(const QImage &image, const QList<int> &keep, const QList<int> &remove, QList<int> &result,
              const std::vector<std::uint8_t> &edges);

/// Floods \a image from any number of seed lists. \a result must hold one
/// list; a list for each region is appended to it. Returns the number of seed
/// lists, or -1 when nothing was done.
int watershedMany(const QImage &image, const std::vector<std::vector<int>> &seeds, QList<QList<int>> &result,
                  const std::vector<std::uint8_t> &edges);

/// Appends one list of pixel indices for each region. Always returns 0.
int waveSegment(const QImage &picture, QList<QList<int>> &regions, int threshold);

/// Fades the alpha of \a picture along the border of the mask's set area.
void feather(QImage &picture, const QBitmap &mask, int count);

/// The same with the mask as a 32-bit image: black 0xff000000 is set, white
/// 0xffffffff is clear.
void featherWithMaskImage(QImage &picture, const QImage &mask, int count);

} // namespace reference
