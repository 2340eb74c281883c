// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "imaging/LargeMemory.h"

#include <QPixelFormat>

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#endif

namespace {

constexpr std::size_t largePage = std::size_t{2} << 20;
constexpr std::size_t smallAlignment = 64; // a cache line

/// What is smaller than a large page is not worth the room that the alignment may cost.
std::align_val_t alignmentFor(std::size_t bytes)
{
    return std::align_val_t{bytes < largePage ? smallAlignment : largePage};
}

/// Rounded up, so that the last page can be a large one too.
std::size_t wholePages(std::size_t bytes)
{
    return bytes < largePage ? bytes : (bytes + largePage - 1) / largePage * largePage;
}

void freePicture(void *pixels)
{
    freeLargeMemory(pixels, largePage);
}

} // namespace

void *allocateLargeMemory(std::size_t bytes) noexcept
{
    if (bytes > std::numeric_limits<std::size_t>::max() - largePage)
        return nullptr;
    void *memory = ::operator new(wholePages(bytes), alignmentFor(bytes), std::nothrow);
#ifdef MADV_HUGEPAGE
    if (memory != nullptr && bytes >= largePage)
        madvise(memory, wholePages(bytes), MADV_HUGEPAGE); // refused, the memory is as good as any other
#endif
    return memory;
}

void freeLargeMemory(void *memory, std::size_t bytes) noexcept
{
    ::operator delete(memory, alignmentFor(bytes));
}

QImage makeLargePicture(QSize size, QImage::Format format)
{
    constexpr int pixelBytes = 4;
    constexpr int longestRow = std::numeric_limits<int>::max() / pixelBytes;
    const bool plain = size.isEmpty() || size.width() > longestRow || format == QImage::Format_Invalid ||
                       QImage::toPixelFormat(format).bitsPerPixel() != 8 * pixelBytes;
    const quint64 bytes = plain ? 0
                                : quint64{pixelBytes} * static_cast<quint64>(size.width()) *
                                      static_cast<quint64>(size.height());
    if (bytes < largePage)
        return {size, format};
    if (bytes > std::numeric_limits<std::size_t>::max())
        return {};
    auto *pixels = static_cast<uchar *>(allocateLargeMemory(static_cast<std::size_t>(bytes)));
    if (pixels == nullptr)
        return {};
    return {pixels, size.width(), size.height(), qsizetype{pixelBytes} * size.width(),
            format, freePicture,  pixels};
}
