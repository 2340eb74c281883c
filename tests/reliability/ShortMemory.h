// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <cstdlib>
#include <vector>

#include <sys/resource.h>

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

    static rlim_t inUse()
    {
        QFile file("/proc/self/statm");
        if (!file.open(QIODevice::ReadOnly))
            return 0;
        return file.readAll().split(' ').constFirst().toULongLong() * 4096;
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
