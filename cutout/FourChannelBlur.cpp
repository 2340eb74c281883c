// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/FourChannelBlur.h"

#include "core/GaussianBlur.h"
#include "cutout/LargePicture.h"
#include "imaging/Views.h"

#include <algorithm>

namespace cutout {

void blurFourChannels(const QImage &src, QImage &dst, int size, double sigma,
                      const ornevo::ProgressCallback &progress)
{
    if (&src == &dst || src.isNull() || src.size() != dst.size() || src.depth() != 32 || dst.depth() != 32)
        return;
    ornevo::blurFourChannels(imaging::viewOf(src), imaging::mutableViewOf(dst), size, sigma, progress);
}

QImage blurDestination(const QImage &src, int size)
{
    QImage destination = makeLargePicture(src.size(), src.format());
    if (destination.isNull())
        return destination;
    const int width = src.width();
    const int band = std::min(std::max(size, 0) / 2, width);
    for (int y = 0; y < src.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(src.constScanLine(y));
        auto *to = reinterpret_cast<QRgb *>(destination.scanLine(y));
        const bool inner = y >= band && y < src.height() - band && width > 2 * band;
        std::copy_n(from, inner ? band : width, to);
        if (inner)
            std::copy_n(from + width - band, band, to + width - band);
    }
    return destination;
}

} // namespace cutout
