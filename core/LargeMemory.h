// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Export.h"

#include <cstddef>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>

/// \file
/// Memory for what is as large as a picture. A system hands out fresh memory a page of four kilobytes at a
/// time, each at the first touch and with an interruption of the program; a picture's worth of them takes
/// longer than most of the work on it. What is got here asks for pages of two megabytes where the system has
/// them, which is also easier on whoever jumps about in the memory, as the flooding does.
namespace ornevo {

/// Uninitialised memory, null when there is none. Goes back by freeLargeMemory() with the same size.
[[nodiscard]] ORNEVO_CORE_EXPORT void *allocateLargeMemory(std::size_t bytes) noexcept;
ORNEVO_CORE_EXPORT void freeLargeMemory(void *memory, std::size_t bytes) noexcept;

struct FreeLargeMemory
{
    std::size_t bytes = 0;
    void operator()(void *memory) const noexcept { freeLargeMemory(memory, bytes); }
};

template <typename T> using LargeArray = std::unique_ptr<T[], FreeLargeMemory>;

/// `count` uninitialised elements; null when there is no memory.
template <typename T> [[nodiscard]] LargeArray<T> makeLargeArray(std::size_t count) noexcept
{
    static_assert(std::is_trivially_default_constructible_v<T> && std::is_trivially_destructible_v<T>);
    if (count > std::numeric_limits<std::size_t>::max() / sizeof(T))
        return {};
    const std::size_t bytes = count * sizeof(T);
    return {static_cast<T *>(allocateLargeMemory(bytes)), FreeLargeMemory{bytes}};
}

/// For the containers of the standard library.
template <typename T> struct LargeAllocator
{
    using value_type = T;

    LargeAllocator() noexcept = default;
    template <typename U> LargeAllocator(const LargeAllocator<U> & /*other*/) noexcept {}

    /// Throws std::bad_alloc.
    T *allocate(std::size_t count)
    {
        LargeArray<T> memory = makeLargeArray<T>(count);
        if (memory == nullptr)
            throw std::bad_alloc();
        return memory.release();
    }
    void deallocate(T *memory, std::size_t count) noexcept { freeLargeMemory(memory, count * sizeof(T)); }

    friend bool operator==(const LargeAllocator & /*a*/, const LargeAllocator & /*b*/) noexcept
    {
        return true;
    }
};

} // namespace ornevo
