// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/CutOut.h"

#include "cutout/LargePicture.h"

#include <QColorSpace>

#include <algorithm>
#include <utility>

namespace cutout {

namespace {

/// `count` pixels of the photo with the mask's alpha.
void cutRow(const QRgb *photo, const QRgb *mask, int count, QRgb *out)
{
    for (int x = 0; x < count; ++x)
        out[x] = (photo[x] & 0x00FFFFFFU) | (~mask[x] << 24);
}

/// A picture like `photo` but for its format, its pixels not yet written.
QImage emptyLike(const QImage &photo, QImage::Format format)
{
    QImage picture = makeLargePicture(photo.size(), format);
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
    QImage result =
        opaque ? emptyLike(photo, QImage::Format_ARGB32) : photo.convertToFormat(QImage::Format_ARGB32);
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

QImage premultiplied(const QImage &picture)
{
    // By blocks of rows that stay in the cache between their conversion and their copying, so that the pixels
    // of the picture come from memory and go there once.
    constexpr int blockPixels = 1 << 15;
    const auto format = QImage::Format_ARGB32_Premultiplied;
    if (picture.format() != QImage::Format_ARGB32)
        return picture.convertToFormat(format);
    QImage result = emptyLike(picture, format);
    if (result.isNull())
        return {};
    const int rows = std::max(1, blockPixels / picture.width());
    for (int top = 0; top < picture.height(); top += rows) {
        const int height = std::min(rows, picture.height() - top);
        const QImage block = QImage(picture.constScanLine(top), picture.width(), height,
                                    picture.bytesPerLine(), picture.format())
                                 .convertToFormat(format);
        if (block.isNull())
            return {};
        std::copy_n(block.constBits(), block.sizeInBytes(), result.scanLine(top));
    }
    return result;
}

} // namespace cutout
