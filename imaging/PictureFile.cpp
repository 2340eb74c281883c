// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/PictureFile.h"

#include "imaging/PictureCompleteness.h"

#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>

namespace {

constexpr int allocationLimitInMiB = 1024;

} // namespace

QImage readPicture(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !isCompletePicture(file))
        return {};
    // Qt's own limit refuses what today's cameras make.
    QImageReader::setAllocationLimit(allocationLimitInMiB);
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    QImage picture;
    if (!reader.read(&picture))
        return {};
    picture.setDevicePixelRatio(1.0); // Qt takes "@2x" in a file's name for a hint; here a pixel is a pixel
    return picture;
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
