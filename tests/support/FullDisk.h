// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <csignal>

#include <sys/resource.h>
#ifdef ORNEVO_ADDRESS_SANITIZER
#include <sanitizer/lsan_interface.h>
#endif

namespace testsupport {

/// While it lives, leaks are not counted: Qt's PNG writer loses its list of rows when it can't write.
struct UncountedLeaks
{
#ifdef ORNEVO_ADDRESS_SANITIZER
    UncountedLeaks()
    {
        __lsan_disable();
    }
    ~UncountedLeaks()
    {
        __lsan_enable();
    }
#else
    UncountedLeaks() = default;
#endif
    UncountedLeaks(const UncountedLeaks &) = delete;
    UncountedLeaks &operator=(const UncountedLeaks &) = delete;
};

/// While it lives, a file can't grow beyond some bytes: writing fails as it does on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit full = m_before;
        full.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    [[maybe_unused]] UncountedLeaks m_uncounted; // only a leak checker has a use for it
    rlimit m_before{};
    void (*m_signal)(int) = nullptr;
};

} // namespace testsupport
