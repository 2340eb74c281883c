// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/PictureFile.h"

#include "cutout/LargePicture.h"
#include "cutout/PictureCompleteness.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>

#include <new>

namespace cutout {

namespace {

constexpr int allocationLimitInMiB = 1024;
constexpr qint64 largestPixelCount = (qint64{allocationLimitInMiB} << 20) / 4;
constexpr qint64 largestJpeg = largestPixelCount; // a byte a pixel is more than photographs take

/// A picture that the decoder finds fit for its pixels and therefore takes, or a null one. Only for decoders
/// that write every pixel of what they are given.
QImage roomFor(const QImageReader &reader)
{
    const QByteArray file = reader.format();
    const QSize size = reader.size();
    if ((file != "jpeg" && file != "png") || size.isEmpty() ||
        qint64{size.width()} * size.height() > largestPixelCount)
        return {}; // the decoder gets its own
    // Asked for last: after a header that it could not read, a decoder has any number to say.
    const QImage::Format pixels = reader.imageFormat();
    if (pixels != QImage::Format_RGB32 && pixels != QImage::Format_ARGB32)
        return {};
    return makeLargePicture(size, pixels);
}

QImage decoded(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray beginning = file.peek(64);
    QBuffer memory; // gone through twice, a JPEG is read once
    if (beginsLikeJpeg(beginning)) {
        if (file.size() > largestJpeg)
            return {};
        memory.setData(file.readAll());
        memory.open(QIODevice::ReadOnly);
    }
    if (memory.isOpen() ? !isCompleteJpeg(memory.data()) : !isCompleteBmp(beginning, file.size()))
        return {};
    // Qt's own limit refuses what today's cameras make.
    QImageReader::setAllocationLimit(allocationLimitInMiB);
    QImageReader reader(memory.isOpen() ? static_cast<QIODevice *>(&memory) : &file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    QImage picture = roomFor(reader);
    if (!reader.read(&picture))
        return {};
    picture.setDevicePixelRatio(1.0); // Qt takes "@2x" in a file's name for a hint; here a pixel is a pixel
    return picture;
}

} // namespace

QImage readPicture(const QString &path)
{
    try {
        return decoded(path);
    } catch (const std::bad_alloc &) {
        return {};
    }
}

bool writePicture(const QImage &picture, const QString &path, const QByteArray &format)
{
    if (picture.isNull() || path.isEmpty() ||
        !QImageWriter::supportedImageFormats().contains(format.toLower()))
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QImageWriter writer(&file, format);
    writer.setQuality(100);
    // What waits in the file's buffer can fail as well, and commit() would not notice.
    if (!writer.write(picture) || !file.flush() || file.error() != QFileDevice::NoError) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

} // namespace cutout
