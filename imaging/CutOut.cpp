// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/CutOut.h"

#include <algorithm>

QImage cutOut(const QImage &photo, const QImage &mask)
{
    QImage result = photo.convertToFormat(QImage::Format_ARGB32);
    if (result.isNull() || mask.depth() != 32)
        return result;
    const int width = std::min(result.width(), mask.width());
    const int height = std::min(result.height(), mask.height());
    for (int y = 0; y < height; ++y) {
        auto *pixels = reinterpret_cast<QRgb *>(result.scanLine(y));
        const auto *grey = reinterpret_cast<const QRgb *>(mask.constScanLine(y));
        for (int x = 0; x < width; ++x)
            pixels[x] = (pixels[x] & 0x00FFFFFFU) | (~grey[x] << 24);
    }
    return result;
}
