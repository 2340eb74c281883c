// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

// What is defined here must keep the names of the system's headers from turning into others.
#undef _FILE_OFFSET_BITS
#undef _FORTIFY_SOURCE

#include "tests/reliability/FailingCalls.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

const char *failing = nullptr;
int errorToGive = 0;
int goodOnes = 0;
int failures = 0;

bool mustFail(const char *name)
{
    if (failing == nullptr || std::strcmp(failing, name) != 0 || goodOnes-- > 0)
        return false;
    goodOnes = 0; // and so do all that follow: a disk that is full stays full
    ++failures;
    errno = errorToGive;
    return true;
}

template <typename Function> Function *next(Function * /*type*/, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

int modeOf(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, int) : 0;
}

} // namespace

extern "C" {

void failCall(const char *name, int error, int after)
{
    failing = name;
    errorToGive = error;
    goodOnes = after;
    failures = 0;
}

int failedCalls()
{
    return failures;
}

int open(const char *path, int flags, ...)
{
    static auto *const real = next(&::open, "open");
    va_list arguments;
    va_start(arguments, flags);
    const int mode = modeOf(flags, arguments);
    va_end(arguments);
    // Only where something is to be written.
    return (flags & O_ACCMODE) != O_RDONLY && mustFail("open") ? -1 : real(path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    static auto *const real = next(&::open, "open64");
    va_list arguments;
    va_start(arguments, flags);
    const int mode = modeOf(flags, arguments);
    va_end(arguments);
    return (flags & O_ACCMODE) != O_RDONLY && mustFail("open") ? -1 : real(path, flags, mode);
}

ssize_t write(int file, const void *data, size_t size)
{
    static auto *const real = next(&::write, "write");
    return mustFail("write") ? -1 : real(file, data, size);
}

ssize_t pwrite(int file, const void *data, size_t size, off_t at)
{
    static auto *const real = next(&::pwrite, "pwrite");
    return mustFail("write") ? -1 : real(file, data, size, at);
}

ssize_t pwrite64(int file, const void *data, size_t size, off64_t at)
{
    static auto *const real = next(&::pwrite64, "pwrite64");
    return mustFail("write") ? -1 : real(file, data, size, at);
}

ssize_t pread(int file, void *data, size_t size, off_t at)
{
    static auto *const real = next(&::pread, "pread");
    return mustFail("pread") ? -1 : real(file, data, size, at);
}

int fsync(int file)
{
    static auto *const real = next(&::fsync, "fsync");
    return mustFail("fsync") ? -1 : real(file);
}

int fdatasync(int file)
{
    static auto *const real = next(&::fdatasync, "fdatasync");
    return mustFail("fsync") ? -1 : real(file);
}

int close(int file)
{
    static auto *const real = next(&::close, "close");
    const bool fails = mustFail("close");
    const int error = errno;
    const int result = real(file);
    if (!fails)
        return result;
    errno = error;
    return -1;
}

int rename(const char *from, const char *to)
{
    static auto *const real = next(&::rename, "rename");
    return mustFail("rename") ? -1 : real(from, to);
}

int ftruncate(int file, off_t size)
{
    static auto *const real = next(&::ftruncate, "ftruncate");
    return mustFail("ftruncate") ? -1 : real(file, size);
}

// Gives an error instead of setting errno. Where the file system has no such call, the C library writes
// zeros, and leaves those that went well.
int posix_fallocate(int file, off_t at, off_t size)
{
    static auto *const real = next(&::posix_fallocate, "posix_fallocate");
    if (!mustFail("posix_fallocate"))
        return real(file, at, size);
    real(file, at, size - 1);
    return errorToGive;
}

void *mmap(void *address, size_t size, int protection, int flags, int file, off_t at)
{
    static auto *const real = next(&::mmap, "mmap");
    return size > (size_t{1} << 16) && mustFail("mmap") ? MAP_FAILED
                                                        : real(address, size, protection, flags, file, at);
}

} // extern "C"
