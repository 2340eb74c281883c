// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

class QIODevice;

/// Whether a picture file that its decoder would read is there to its end. Decoders of JPEG and BMP fill up
/// what is missing of a truncated file with grey; a user who works on such a picture finds out too late.
///
/// `file` is open for reading and not sequential; its position is put back. A file of another format counts
/// as complete: its decoder tells.
[[nodiscard]] bool isCompletePicture(QIODevice &file);
