// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "tests/reference/TestPictures.h"

#include <algorithm>
#include <cstddef>

namespace testpictures {

namespace {

using Bytes = std::vector<std::uint8_t>;

std::size_t area(int width, int height)
{
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

void freeBytes(void *bytes)
{
    delete static_cast<Bytes *>(bytes);
}

} // namespace

QImage toImage(const reference::Picture &picture, QImage::Format format)
{
    QImage image(picture.width, picture.height, format);
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            reinterpret_cast<QRgb *>(image.scanLine(y))[x] = picture.at(x, y);
    return image;
}

reference::Picture toPicture(const QImage &image)
{
    reference::Picture picture(image.width(), image.height());
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            picture.at(x, y) = reinterpret_cast<const QRgb *>(image.constScanLine(y))[x];
    return picture;
}

QList<QSize> awkwardSizes()
{
    QList<QSize> sizes;
    for (const auto &[width, height] : awkwardExtents())
        sizes.append(QSize(width, height));
    return sizes;
}

QImage randomImage(int width, int height, std::uint32_t seed)
{
    return toImage(randomPicture(width, height, seed));
}

QImage constantImage(int width, int height, QRgb color)
{
    return toImage(constantPicture(width, height, color));
}

QImage rampImage(int width, int height, int step)
{
    return toImage(rampPicture(width, height, step));
}

QImage stepImage(int width, int height, int at, QRgb left, QRgb right)
{
    return toImage(stepPicture(width, height, at, left, right));
}

QImage plateauImage(int width, int height, int tile, int colors, std::uint32_t seed)
{
    return toImage(plateauPicture(width, height, tile, colors, seed));
}

QImage greyStepsImage(int width, int height, std::uint32_t seed)
{
    return toImage(greyStepsPicture(width, height, seed));
}

QImage greyImage(int width, int height, const Bytes &plane)
{
    return toImage(greyPicture(width, height, plane));
}

QImage blobImage(int width, int height, std::uint32_t seed)
{
    return toImage(blobPicture(width, height, seed));
}

QImage randomArgbImage(int width, int height, std::uint32_t seed)
{
    return toImage(randomArgbPicture(width, height, seed), QImage::Format_ARGB32);
}

QImage blobMaskImage(int width, int height, std::uint32_t seed)
{
    return toImage(blobMaskPicture(width, height, seed), QImage::Format_ARGB32);
}

QImage paddedImage(const QImage &image, int extraPixels, std::uint32_t seed)
{
    if (image.isNull())
        return image;
    const int width = image.width();
    const int height = image.height();
    const int stride = 4 * (width + extraPixels);
    Bytes *bytes = new Bytes(randomPlane(stride, height, seed));
    for (int y = 0; y < height; ++y)
        std::copy_n(image.constScanLine(y), 4 * width,
                    bytes->begin() + static_cast<std::ptrdiff_t>(y) * stride);
    return QImage(bytes->data(), width, height, stride, image.format(), freeBytes, bytes);
}

bool paddingUntouched(const QImage &padded, std::uint32_t seed)
{
    const int stride = static_cast<int>(padded.bytesPerLine());
    const Bytes bytes = randomPlane(stride, padded.height(), seed);
    for (int y = 0; y < padded.height(); ++y) {
        const uchar *row = padded.constScanLine(y);
        for (int i = 4 * padded.width(); i < stride; ++i)
            if (row[i] != bytes.at(area(stride, y) + static_cast<std::size_t>(i)))
                return false;
    }
    return true;
}

QList<int> randomIndices(int width, int height, int count, std::uint32_t seed)
{
    const std::vector<int> indices = randomPixels(width, height, count, seed);
    return {indices.begin(), indices.end()};
}

} // namespace testpictures
