// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

/// \file
/// System calls that fail when a test says so. The library that holds them stands before the C library, so
/// that ours and Qt's calls alike go through them.

/// From now on the call of that name ("open", "write", "fsync" ...) fails with `error`, an errno, when it has
/// gone well `after` times. A null name: all go well again. A failing close() closes all the same, as on
/// network file systems.
extern "C" void failCall(const char *name, int error, int after);

/// How often a call has failed since failCall().
extern "C" int failedCalls();
