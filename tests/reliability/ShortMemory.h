// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTest>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

/// Begins a test that uses ShortMemory. The address sanitizer reserves terabytes of address space at the
/// start, so that no limit can be set under it; these tests run without it.
#ifdef ORNEVO_ADDRESS_SANITIZER
#define SKIP_UNLESS_MEMORY_CAN_BE_SHORT() QSKIP("the address sanitizer needs an address space without limit")
#else
#define SKIP_UNLESS_MEMORY_CAN_BE_SHORT() static_cast<void>(0)
#endif

/// While it lives, the process gets some more memory and no more.
class ShortMemory
{
public:
    struct Total
    {
        rlim_t bytes;
    };

    explicit ShortMemory(rlim_t moreBytes)
    {
        takeReserve();
        limitTo(inUse() + moreBytes);
    }
    /// Together with what it has; but some megabytes more, without which nothing of Qt works.
    explicit ShortMemory(Total all)
    {
        takeReserve();
        limitTo(std::max(all.bytes, inUse() + (rlim_t{10} << 20)));
    }
    ~ShortMemory()
    {
        setrlimit(RLIMIT_AS, &m_before);
        for (void *block : m_reserve)
            std::free(block);
    }
    ShortMemory(const ShortMemory &) = delete;
    ShortMemory &operator=(const ShortMemory &) = delete;

private:
    void takeReserve()
    {
        getrlimit(RLIMIT_AS, &m_before);
        limitTo(inUse());
        // The allocator has address space in reserve, which does not count: it is taken first.
        for (std::size_t size = std::size_t{64} << 20; size >= std::size_t{1} << 20; size /= 2)
            while (void *block = std::malloc(size))
                m_reserve.push_back(block);
    }

    /// Without the heap, which may have nothing left to give.
    static rlim_t inUse()
    {
        const int file = ::open("/proc/self/statm", O_RDONLY | O_CLOEXEC);
        char text[64] = {};
        const ssize_t read = ::read(file, text, sizeof(text) - 1);
        ::close(file);
        return read > 0 ? std::strtoull(text, nullptr, 10) * 4096 : 0;
    }

    void limitTo(rlim_t bytes) const
    {
        rlimit shortOf = m_before;
        shortOf.rlim_cur = bytes;
        setrlimit(RLIMIT_AS, &shortOf);
    }

    rlimit m_before{};
    std::vector<void *> m_reserve;
};
