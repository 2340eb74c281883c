// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/PictureFile.h"

#include "cutout/LargePicture.h"
#include "cutout/LeanPicture.h"
#include "cutout/RasterFormat.h"
#include "cutout/RegularFile.h"
#include "cutout/TimedDevice.h"

#include <QBuffer>
#include <QImageReader>

#include <new>
#include <utility>

namespace cutout {

namespace {

constexpr int allocationLimitInMiB = 1024;
constexpr qint64 mostPixels = (qint64{allocationLimitInMiB} << 20) / 4;
constexpr qint64 beginningBytes = 1024;
constexpr int mostSeconds = 8;

bool isTooLarge(QSize size)
{
    return qint64{size.width()} * size.height() > mostPixels;
}

/// A picture that the decoder finds fit for its pixels and therefore takes, or a null one: the decoder gets
/// its own.
QImage destinationFor(const QImageReader &reader)
{
    const QByteArray format = reader.format();
    const QSize size = reader.size();
    if (size.isEmpty())
        return {};
    // Asked for last: after a header that it could not read, a decoder has any number to say.
    if (format == "jpeg" || format == "png") { // these write every pixel of what they are given
        const QImage::Format pixels = reader.imageFormat();
        return pixels == QImage::Format_RGB32 || pixels == QImage::Format_ARGB32
                   ? makeLargePicture(size, pixels)
                   : QImage();
    }
    if (format != "bmp")
        return {};
    QImage picture(size, reader.imageFormat()); // what is missing of a truncated file stays black
    if (!picture.isNull())
        picture.fill(0);
    return picture;
}

/// What a decoder makes of a file, straight from the device.
QImage decoded(QIODevice &file, const QByteArray &format)
{
    // Qt's own limit refuses what today's cameras make.
    QImageReader::setAllocationLimit(allocationLimitInMiB);
    QImageReader reader(&file, format);
    reader.setAutoDetectImageFormat(false); // or every plugin there is would be asked
    reader.setAutoTransform(true);
    if (!reader.canRead() || isTooLarge(reader.size()))
        return {};
    QImage picture = destinationFor(reader);
    if (!reader.read(&picture) || isTooLarge(picture.size()))
        return {};
    picture.setDevicePixelRatio(1.0); // Qt takes "@2x" in a file's name for a hint; here a pixel is a pixel
    return picture;
}

QImage decodedInTime(QIODevice &file, const QByteArray &format)
{
    TimedDevice device(file, mostSeconds);
    const QImage picture = decoded(device, format);
    return device.ranOut() ? QImage() : picture;
}

QImage decodedInMemory(QByteArray file, const QByteArray &format)
{
    if (file.isEmpty())
        return {};
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    // Qt reads a JPEG in memory without copying it, and its work has been bounded already.
    return format == "jpeg" ? decoded(buffer, format) : decodedInTime(buffer, format);
}

QImage decodedAs(QFile &file, const QByteArray &format)
{
    // No more than the file's size of now: it may be growing.
    const auto contents = [&file] { return file.read(file.size()); };
    if (format == "jpeg")
        return decodedInMemory(leanJpeg(contents()), format);
    if (format == "png")
        return decodedInMemory(leanPng(contents()), format);
    if (format == "gif")
        return decodedInMemory(leanGif(contents()), format);
    if (format == "ico" || format == "cur") {
        QByteArray icon = contents();
        const QByteArray png = pngInIcon(icon);
        return png.isEmpty() ? decodedInMemory(std::move(icon), format)
                             : decodedInMemory(leanPng(png), "png");
    }
    if (format == "tiff" && !hasModestTiles(file))
        return {};
    return decodedInTime(file, format);
}

} // namespace

QImage readPicture(const QString &path)
{
    try {
        QFile file;
        if (!openRegularFile(file, path))
            return {};
        for (const QByteArray &format : rasterFormats(file.peek(beginningBytes))) {
            QImage picture = decodedAs(file, format);
            if (!picture.isNull())
                return picture;
            if (!file.seek(0))
                return {};
        }
    } catch (const std::bad_alloc &) { // refused, like a picture that is too large
    }
    return {};
}

} // namespace cutout
