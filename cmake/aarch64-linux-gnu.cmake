# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
#
# Toolchain file: from a PC for 64-bit Arm with Debian's cross-compiler and Debian's libraries for arm64. Tests run under
# qemu's user emulation; the environment variable QEMU_CPU chooses the processor.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64)
# The host's own CMake packages must not be found.
set(CMAKE_IGNORE_PREFIX_PATH /usr/lib/x86_64-linux-gnu)
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/aarch64-linux-gnu/pkgconfig:/usr/share/pkgconfig)
