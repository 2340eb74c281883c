// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/MipmapLevel.h"

#include <algorithm>
#include <cstddef>

namespace cutout {

namespace {

bool hasMipmapLevels(const QImage &level)
{
    return level.format() == QImage::Format_RGB32 || level.format() == QImage::Format_ARGB32_Premultiplied;
}

// Two bytes at a time, each in one half of a word, which holds the sum of four of them.
QRgb averageOfFour(QRgb a, QRgb b, QRgb c, QRgb d)
{
    constexpr QRgb even = 0x00FF00FF;
    constexpr QRgb rounding = 0x00020002;
    const QRgb low = (a & even) + (b & even) + (c & even) + (d & even) + rounding;
    const QRgb high = (a >> 8 & even) + (b >> 8 & even) + (c >> 8 & even) + (d >> 8 & even) + rounding;
    return (low >> 2 & even) | (high >> 2 & even) << 8;
}

void averageRow(const QRgb *upper, const QRgb *lower, int width, int from, int to, QRgb *out)
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

QImage nextMipmapLevel(const QImage &level)
{
    if (!hasMipmapLevels(level))
        return {};
    QImage next((level.width() + 1) / 2, (level.height() + 1) / 2, level.format());
    if (!next.isNull())
        renewMipmapLevel(next, level, level.rect());
    return next;
}

QRect renewMipmapLevel(QImage &next, const QImage &level, const QRect &area)
{
    const QRect source = area.intersected(level.rect());
    if (source.isEmpty() || next.isNull())
        return {};
    const QRect target(QPoint(source.left() / 2, source.top() / 2),
                       QPoint(source.right() / 2, source.bottom() / 2));
    for (int y = target.top(); y <= target.bottom(); ++y) {
        const auto *upper = reinterpret_cast<const QRgb *>(level.constScanLine(2 * y));
        const auto *lower =
            reinterpret_cast<const QRgb *>(level.constScanLine(std::min(2 * y + 1, level.height() - 1)));
        averageRow(upper, lower, level.width(), target.left(), target.right() + 1,
                   reinterpret_cast<QRgb *>(next.scanLine(y)));
    }
    return target;
}

} // namespace cutout
