// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "cutout/LargePicture.h"

#include "core/LargeMemory.h"

#include <QPixelFormat>

#include <limits>

namespace cutout {

namespace {

// Below this size QImage's own memory is as good.
constexpr std::size_t hugePage = std::size_t{2} << 20;

void freePicture(void *pixels)
{
    ornevo::freeLargeMemory(pixels, hugePage); // any size from one huge page on is freed alike
}

} // namespace

QImage makeLargePicture(QSize size, QImage::Format format)
{
    constexpr int pixelBytes = 4;
    constexpr int longestRow = std::numeric_limits<int>::max() / pixelBytes;
    const bool plain = size.isEmpty() || size.width() > longestRow || format == QImage::Format_Invalid ||
                       QImage::toPixelFormat(format).bitsPerPixel() != 8 * pixelBytes;
    const quint64 bytes = plain ? 0
                                : quint64{pixelBytes} * static_cast<quint64>(size.width()) *
                                      static_cast<quint64>(size.height());
    if (bytes < hugePage)
        return {size, format};
    if (bytes > std::numeric_limits<std::size_t>::max())
        return {};
    auto *pixels = static_cast<uchar *>(ornevo::allocateLargeMemory(static_cast<std::size_t>(bytes)));
    if (pixels == nullptr)
        return {};
    return {pixels, size.width(), size.height(), qsizetype{pixelBytes} * size.width(),
            format, freePicture,  pixels};
}

} // namespace cutout
