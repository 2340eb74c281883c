// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

namespace cutout {

/// Reads a picture, whatever its name says it is, by its contents. A photo that was taken with the camera on
/// its side comes back upright; of an animation the first frame is taken.
///
/// Null when the file can't be read, ends too early, holds no picture, or would need more than 1 GiB of
/// pixels. Sets Qt's limit for pictures (QImageReader::setAllocationLimit()), which holds for the whole
/// process.
[[nodiscard]] QImage readPicture(const QString &path);

/// Writes a picture in `format` ("jpg", "png" ...) at quality 100. The file appears, or takes the place of
/// the one that was there, in one step when all of it is on the disk: whatever fails before leaves an older
/// file whole and no new one behind. Returns whether it was written: not for a null picture, an empty path,
/// or a format that Qt can't write, an empty one among them.
bool writePicture(const QImage &picture, const QString &path, const QByteArray &format);

} // namespace cutout
