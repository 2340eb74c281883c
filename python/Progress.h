// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT

#pragma once

#include "core/Progress.h"

#include <pybind11/pybind11.h>

namespace ornevo::python {

/// The `progress` argument of a call: a callable that gets each new percentage, and 100 at the end, or
/// None.
class Progress
{
public:
    /// Raises TypeError for what can't be called.
    explicit Progress(pybind11::handle callable);

    /// For the work that runs without the GIL; refers to this object. Empty for None. An exception that the
    /// callable raises is thrown, ends the work and comes out of the call.
    [[nodiscard]] ProgressCallback callback();

    /// The work is done; the GIL is held again.
    void finish();

private:
    void report(int percent);

    pybind11::handle m_callable; ///< kept alive by the call's arguments
    int m_last = -1;
};

} // namespace ornevo::python
