// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

namespace cutout {

/// A picture with uninitialised pixels, like QImage(size, format), but in huge pages where it is large (see
/// core/LargeMemory.h); null when there is no memory.
[[nodiscard]] QImage makeLargePicture(QSize size, QImage::Format format);

} // namespace cutout
