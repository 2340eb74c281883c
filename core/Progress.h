// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace ornevo {

/// Is called with how much of a long work is done, in percent, never less than before; may be empty. It is
/// called on the thread that works. An exception thrown from it ends the work and comes out of the function
/// that was called; all memory is released then, and destinations may be written in part.
using ProgressCallback = std::function<void(int percent)>;

} // namespace ornevo
