// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace cutout {

/// \file
/// Whether a picture file that its decoder would read is there to its end. Decoders of JPEG and BMP fill up
/// what is missing of a truncated file with grey; a user who works on such a picture finds out too late.

/// Whether a file that begins like this is a JPEG.
[[nodiscard]] bool beginsLikeJpeg(const QByteArray &beginning);

/// `file` is all of a file that begins like a JPEG.
[[nodiscard]] bool isCompleteJpeg(const QByteArray &file);

/// `beginning` is the first 64 bytes of a file of `fileSize` bytes, or all of a shorter one. What is no BMP,
/// or one whose size can't be told, counts as complete: its decoder tells.
[[nodiscard]] bool isCompleteBmp(const QByteArray &beginning, qint64 fileSize);

} // namespace cutout
