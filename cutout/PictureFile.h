// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

namespace cutout {

/// Reads a picture, whatever its name says it is, by its contents. A photo that was taken with the camera on
/// its side comes back upright; of an animation the first frame is taken. A file that broke off gives what
/// its decoder makes of the rest.
///
/// Only regular files are read, and only raster formats; what else is in a file than a picture does not reach
/// the decoder. Null when there is no picture, or one of more than 2^28 pixels (1 GiB), and when memory is
/// short. Sets Qt's limit for pictures (QImageReader::setAllocationLimit()), which holds for the whole
/// process.
[[nodiscard]] QImage readPicture(const QString &path);

/// Writes a picture in `format` ("jpg", "png" ...) at quality 100, encoded in memory and then written by
/// replaceFile(): whatever fails before leaves an older file whole and no new one behind. Returns whether it
/// was written: not for a null picture, an empty path, or a format that Qt can't write, an empty one among
/// them.
///
/// Throws std::bad_alloc when there is no memory for the encoded file; nothing is written then.
bool writePicture(const QImage &picture, const QString &path, const QByteArray &format);

} // namespace cutout
