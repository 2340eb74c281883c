// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/MipmapLevel.h"

#include <algorithm>
#include <cstddef>

namespace cutout {

namespace {

bool canBeHalved(const QImage &picture)
{
    return picture.format() == QImage::Format_RGB32 ||
           picture.format() == QImage::Format_ARGB32_Premultiplied;
}

// Two bytes at a time in the two halves of a word, with room for the sum of four.
QRgb averageOfFour(QRgb a, QRgb b, QRgb c, QRgb d)
{
    constexpr QRgb even = 0x00FF00FF;
    constexpr QRgb rounding = 0x00020002;
    const QRgb low = (a & even) + (b & even) + (c & even) + (d & even) + rounding;
    const QRgb high = (a >> 8 & even) + (b >> 8 & even) + (c >> 8 & even) + (d >> 8 & even) + rounding;
    return (low >> 2 & even) | (high >> 2 & even) << 8;
}

void halveRow(const QRgb *upper, const QRgb *lower, int width, int from, int to, QRgb *out)
{
    const int whole = std::min(to, width / 2);
    for (std::ptrdiff_t x = from; x < whole; ++x)
        out[x] = averageOfFour(upper[2 * x], upper[2 * x + 1], lower[2 * x], lower[2 * x + 1]);
    if (to > whole && to > from) { // the last column of an odd width has no partner
        const QRgb above = upper[width - 1];
        const QRgb below = lower[width - 1];
        out[to - 1] = averageOfFour(above, above, below, below);
    }
}

} // namespace

QImage halved(const QImage &picture)
{
    if (!canBeHalved(picture))
        return {};
    QImage half((picture.width() + 1) / 2, (picture.height() + 1) / 2, picture.format());
    if (!half.isNull())
        renewHalved(half, picture, picture.rect());
    return half;
}

QRect renewHalved(QImage &half, const QImage &picture, const QRect &area)
{
    const QRect source = area.intersected(picture.rect());
    if (source.isEmpty() || half.isNull())
        return {};
    const QRect target(QPoint(source.left() / 2, source.top() / 2),
                       QPoint(source.right() / 2, source.bottom() / 2));
    for (int y = target.top(); y <= target.bottom(); ++y) {
        const auto *upper = reinterpret_cast<const QRgb *>(picture.constScanLine(2 * y));
        const auto *lower =
            reinterpret_cast<const QRgb *>(picture.constScanLine(std::min(2 * y + 1, picture.height() - 1)));
        halveRow(upper, lower, picture.width(), target.left(), target.right() + 1,
                 reinterpret_cast<QRgb *>(half.scanLine(y)));
    }
    return target;
}

} // namespace cutout
