// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/CutOut.h"

#include <QColorSpace>

#include <algorithm>
#include <utility>

namespace {

/// `count` pixels of the photo with the mask's alpha.
void cutRow(const QRgb *photo, const QRgb *mask, int count, QRgb *out)
{
    for (int x = 0; x < count; ++x)
        out[x] = (photo[x] & 0x00FFFFFFU) | (~mask[x] << 24);
}

/// A picture like `photo`, its pixels not yet written.
QImage emptyArgbLike(const QImage &photo)
{
    QImage picture(photo.size(), QImage::Format_ARGB32);
    picture.setDevicePixelRatio(photo.devicePixelRatio());
    picture.setDotsPerMeterX(photo.dotsPerMeterX());
    picture.setDotsPerMeterY(photo.dotsPerMeterY());
    picture.setColorSpace(photo.colorSpace());
    return picture;
}

} // namespace

QImage cutOut(const QImage &photo, const QImage &mask)
{
    // An opaque photo is converted and cut in one go.
    const bool opaque = photo.format() == QImage::Format_RGB32 && mask.depth() == 32;
    QImage result = opaque ? emptyArgbLike(photo) : photo.convertToFormat(QImage::Format_ARGB32);
    if (result.isNull() || mask.depth() != 32)
        return result;
    const QImage &source = opaque ? photo : std::as_const(result);
    const int width = std::min(result.width(), mask.width());
    for (int y = 0; y < result.height(); ++y) {
        auto *pixels = reinterpret_cast<QRgb *>(result.scanLine(y));
        const auto *colours = reinterpret_cast<const QRgb *>(source.constScanLine(y));
        const int covered = y < mask.height() ? width : 0;
        if (covered > 0)
            cutRow(colours, reinterpret_cast<const QRgb *>(mask.constScanLine(y)), covered, pixels);
        if (opaque)
            std::transform(colours + covered, colours + result.width(), pixels + covered,
                           [](QRgb colour) { return colour | 0xFF000000U; });
    }
    return result;
}
