// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

/// Intersection over union of two masks of the same size, 0 .. 1: of the pixels that are not black in
/// `truth`, and those that `isObject` accepts in `picture`.
template <typename Predicate>
[[nodiscard]] double intersectionOverUnion(const QImage &picture, const QImage &truth, Predicate isObject)
{
    qint64 both = 0;
    qint64 either = 0;
    for (int y = 0; y < truth.height(); ++y) {
        for (int x = 0; x < truth.width(); ++x) {
            const bool found = isObject(picture.pixel(x, y));
            const bool wanted = qGray(truth.pixel(x, y)) != 0;
            both += found && wanted;
            either += found || wanted;
        }
    }
    return either == 0 ? 1.0 : double(both) / double(either);
}
