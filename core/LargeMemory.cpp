// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#include "core/LargeMemory.h"

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#endif

namespace ornevo {

namespace {

constexpr std::size_t hugePage = std::size_t{2} << 20;
constexpr std::size_t smallAlignment = 64; // a cache line

/// What is smaller than a huge page is not worth the memory that the alignment may cost.
std::align_val_t alignmentFor(std::size_t bytes)
{
    return std::align_val_t{bytes < hugePage ? smallAlignment : hugePage};
}

/// Rounded up, so that the last page can be a huge one too.
std::size_t wholePages(std::size_t bytes)
{
    return bytes < hugePage ? bytes : (bytes + hugePage - 1) / hugePage * hugePage;
}

} // namespace

void *allocateLargeMemory(std::size_t bytes) noexcept
{
    if (bytes > std::numeric_limits<std::size_t>::max() - hugePage)
        return nullptr;
    void *memory = ::operator new(wholePages(bytes), alignmentFor(bytes), std::nothrow);
#ifdef MADV_HUGEPAGE
    if (memory != nullptr && bytes >= hugePage)
        madvise(memory, wholePages(bytes), MADV_HUGEPAGE); // refused, the memory is as good as any other
#endif
    return memory;
}

void freeLargeMemory(void *memory, std::size_t bytes) noexcept
{
    ::operator delete(memory, alignmentFor(bytes));
}

} // namespace ornevo
