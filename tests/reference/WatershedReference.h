// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#ifndef ORNEVO_TESTS_REFERENCE_WATERSHEDREFERENCE_H
#define ORNEVO_TESTS_REFERENCE_WATERSHEDREFERENCE_H

#include <QImage>
#include <QList>

#include <cstdint>
#include <vector>

namespace reference {

/// Weighted colour difference of two pixels, 0 .. 255: red, green and blue are
/// added in this order and the sum is truncated.
int luminanceDifference(QRgb p, QRgb q);

/// Floods \a image from the Keep and the Remove seeds and appends the indices
/// of the Keep region to \a result. Returns 0, or -1 when nothing was done.
int watershed(const QImage &image, const QList<int> &keep, const QList<int> &remove, QList<int> &result,
              const std::vector<std::uint8_t> &edges);

/// Floods \a image from any number of seed lists. \a result must hold one
/// list; a list for each region is appended to it. Returns the number of seed
/// lists, or -1 when nothing was done.
int watershedMany(const QImage &image, const std::vector<std::vector<int>> &seeds, QList<QList<int>> &result,
                  const std::vector<std::uint8_t> &edges);

} // namespace reference

#endif
